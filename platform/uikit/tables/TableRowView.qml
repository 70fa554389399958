// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A row of a table: its cell, the ground of a pressed or selected row, and separators.
Item {
    id: root

    required property TableEntryView entry
    readonly property UITableViewCell cell: entry.cell
    readonly property real separatorInset: Metrics.margin + (cell.imageView.image.name ? Metrics.margin + Metrics.rowImage : 0)

    // The drawing stays for another cell of its kind.
    function show() {
        if (`${content.source}` === `${cell.viewUrl}`)
            (content.item as Item)["control"] = cell
        else
            content.setSource(cell.viewUrl, {"control": cell})
    }

    implicitHeight: content.implicitHeight
    onCellChanged: show()
    Component.onCompleted: show()

    Accessible.role: Accessible.ListItem
    Accessible.name: cell.accessibilityLabel
    Accessible.description: qsTr("%1 of %2").arg(entry.position).arg(entry.rows)
    Accessible.focusable: true
    Accessible.ignored: !cell.accessibilityLabel || !enabled

    Connections {
        target: root.entry.table
        function onReloaded() {
            touch.cancel() // another row may be under the finger now
        }
    }
    Connections {
        // A handler that is only disabled would still be offered.
        target: root.cell.selectable ? root.Accessible : null
        function onPressAction() {
            root.entry.table.activateEntry(root.entry.index)
        }
    }
    Rectangle {
        anchors.fill: parent
        color: root.cell.backgroundColor.toQColor(Traits.dark)
    }
    Rectangle {
        objectName: "selection"
        anchors.fill: parent
        color: Theme.selectedRowColor
        opacity: root.cell.drawsSelection ? 1 : 0

        Behavior on opacity {
            enabled: root.cell.animatesSelection && !Traits.reduceMotion
            NumberAnimation { duration: Durations.deselection }
        }
    }
    // A double click triggers it twice, a scroll never.
    PressArea {
        id: touch
        anchors.fill: parent
        activeFocusOnTab: false
        yields: true
        onHighlightedChanged: root.cell.setHighlighted(highlighted)
        onTriggered: root.entry.table.activateEntry(root.entry.index)

        // In here, so that a touch beside a small control is the control's.
        Rectangle {
            anchors.fill: parent
            color: root.cell.contentView.backgroundColor.toQColor(Traits.dark)
        }
        Loader {
            id: content
            anchors.fill: parent
        }
    }
    Separator {
        width: parent.width
        visible: root.entry.table.drawsSeparators && root.entry.position === 1
    }
    Separator {
        objectName: "separator"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.entry.position < root.entry.rows ? root.separatorInset : 0
        y: root.height - height
        visible: root.entry.table.drawsSeparators
    }
}
