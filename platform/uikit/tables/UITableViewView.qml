// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// A table: sections from edge to edge, whose rows are made as they scroll by.
Rectangle {
    id: root

    required property UITableView control
    /// Whether Tab comes to the rows, beside the controls in them.
    property bool rowsHaveKeyboard: true

    readonly property Item focused: Window.activeFocusItem

    color: control.backgroundColor.toQColor(Traits.dark)
    clip: true

    // The screen that has the table gives it a name.
    Accessible.role: Accessible.List
    Accessible.focusable: true
    Accessible.ignored: !enabled

    TableKeyboard {
        id: keyboard
        focus: true
        activeFocusOnTab: root.rowsHaveKeyboard
        table: root.control
        list: list
        line: Metrics.row
    }
    FocusFollower {
        keyboard: keyboard
        focused: root.focused
        mark: (root.focused as TextEdit)?.cursorRectangle ?? (root.focused as TextInput)?.cursorRectangle
            ?? Qt.rect(0, 0, root.focused?.width ?? 0, root.focused?.height ?? 0)
        room: list.height - list.bottomMargin
        margin: Metrics.rowMargin
    }
    Loader {
        readonly property UIRefreshControl refreshControl: root.control.refreshControl

        width: parent.width
        onRefreshControlChanged: {
            if (refreshControl)
                setSource("UIRefreshControlView.qml", {"control": refreshControl, "list": list})
            else
                source = ""
        }
    }
    ListView {
        id: list

        // Entries just out of sight are there for Tab and for screen readers; of a short table all are.
        readonly property bool isShort: root.control.entries.count <= 60

        displayMarginBeginning: isShort ? 10000 : 200
        displayMarginEnd: displayMarginBeginning
        objectName: "list"
        anchors.fill: parent
        clip: true
        cacheBuffer: 0 // Qt complains of rows that go while they are made ahead
        currentIndex: -1
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        model: root.control.entries
        delegate: TableEntryView {}
        // The drawing goes beyond its bounds, but the view does not: Qt would throw it back whenever
        // a row leaves there and the heights of unseen rows are estimated anew.
        boundsMovement: Flickable.StopAtBounds
        contentItem.transform: Translate { y: -list.verticalOvershoot }
        bottomMargin: Metrics.covered(root.Window.height, Metrics.keyboard)
        onBottomMarginChanged: returnToBounds()
    }
    FocusRing {
        parent: list.currentItem
        anchors.leftMargin: 0 // a row reaches from edge to edge
        anchors.rightMargin: 0
        z: 1
        shown: keyboard.focusVisible
    }
}
