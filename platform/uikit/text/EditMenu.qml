// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// A menu over the whole window, of the actions on a text. A press outside closes it, and so does
/// any key that does not move through it.
KeyGrabber {
    id: root

    /// Opened the menu, closes it, and performs the chosen action.
    required property EditMenuTrigger trigger
    required property list<string> titles
    /// The place in the window that the menu stands above, or below where there is no room.
    required property rect place

    readonly property real room: height - Metrics.covered(height, Metrics.keyboard)
    property int line: -1

    function move(step: int) {
        line = (Math.max(line, step < 0 ? 0 : -1) + step + titles.length) % titles.length
    }

    anchors.fill: parent
    current: line < 0 ? card : items.itemAt(line)
    LayoutMirroring.enabled: Metrics.direction < 0
    LayoutMirroring.childrenInherit: true

    Keys.onDownPressed: move(1)
    Keys.onTabPressed: move(1)
    Keys.onUpPressed: move(-1)
    Keys.onBacktabPressed: move(-1)
    Keys.onPressed: event => {
        const chooses = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key)
        if (event.isAutoRepeat)
            return // it was pressed before the menu was there
        if (chooses && line >= 0)
            root.trigger.choose(titles[line])
        else if (event.key !== Qt.Key_Shift)
            root.trigger.close()
    }

    Connections {
        target: root.parent // not its height, which an on-screen keyboard takes from
        function onWidthChanged() {
            root.trigger.close()
        }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: root.trigger.close()
        onWheel: root.trigger.close()
    }
    Rectangle {
        id: card

        readonly property real above: root.place.y - height - Metrics.margin / 2

        x: Math.max(Metrics.margin / 2, Math.min(root.place.x + (root.place.width - width) / 2, root.width - width - Metrics.margin / 2))
        y: above >= Metrics.margin / 2 ? above : Math.max(0, Math.min(root.place.bottom + Metrics.margin / 2, root.room - height))
        width: Math.min(Math.max(Metrics.menuWidth, rows.widest), root.width - Metrics.margin)
        height: rows.height
        radius: Metrics.alertRadius
        color: Theme.alertColor
        border.width: Metrics.hairline
        border.pixelAligned: false
        border.color: Theme.separatorColor

        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Edit")

        Column {
            id: rows

            property real widest: 0

            width: parent.width

            Repeater {
                id: items
                model: root.titles

                EditMenuItem {
                    required property string modelData
                    required property int index

                    width: rows.width
                    title: modelData
                    first: index === 0
                    current: index === root.line
                    onTriggered: root.trigger.choose(modelData)
                    Component.onCompleted: rows.widest = Math.max(rows.widest, implicitWidth)
                }
            }
        }
    }
}
