// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// A table: sections from edge to edge, made as they scroll by. What has the keyboard in a row, or
/// the insertion mark in it, stays in sight above the on-screen keyboard.
Rectangle {
    id: root

    required property UITableView control
    /// Whether Tab comes to the rows, beside what they hold.
    property bool rowsHaveKeyboard: true

    readonly property Item focused: Window.activeFocusItem
    readonly property rect mark: (focused as TextEdit)?.cursorRectangle ?? (focused as TextInput)?.cursorRectangle
        ?? Qt.rect(0, 0, focused?.width ?? 0, focused?.height ?? 0)

    function revealSoon() {
        Qt.callLater(reveal); // qmllint disable
    }
    function reveal() {
        let row = focused;
        while (row && row.parent !== list.contentItem)
            row = row.parent;
        if (focused === root || focused === list) // the row that had it went
            keyboard.forceActiveFocus();
        if (!row)
            return;
        const before = list.contentY;
        list.currentIndex = (row as TableEntryView).index; // or it would go when out of sight
        list.contentY = before;
        list.forceLayout(); // as high as what is typed has made it
        const place = focused.mapToItem(list.contentItem, mark);
        const bottom = place.bottom + Metrics.rowMargin - (list.height - list.bottomMargin);
        list.contentY = Math.min(place.top - Metrics.rowMargin, Math.max(list.contentY, bottom));
        const inside = keyboard.firstControl(row as TableEntryView);
        if (focused === row) // what had the keyboard in it went in a reload
            (inside ? inside : keyboard).forceActiveFocus(Qt.TabFocusReason);
        else if (!focused.activeFocusOnTab)
            keyboard.forceActiveFocus(); // by screen reader; keys are heard here
    }

    color: control.backgroundColor.toQColor(Traits.dark)
    clip: true

    // Its name is whose table it is.
    Accessible.role: Accessible.List
    Accessible.focusable: true
    Accessible.ignored: !enabled

    onFocusedChanged: revealSoon()
    onMarkChanged: revealSoon()

    TableKeyboard {
        id: keyboard

        // What is disabled has no controls, until it is enabled again.
        readonly property Item accessible: root.enabled ? accessibleItem(list.currentItem as TableEntryView) : null

        focus: true
        activeFocusOnTab: root.rowsHaveKeyboard
        control: root.control
        list: list
        current: accessible ? accessible : root
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

        // What is just out of sight is there for Tab and for screen readers; of a short table all is.
        readonly property bool isShort: root.control.entries.count <= 60

        displayMarginBeginning: isShort ? 10000 : 200
        displayMarginEnd: displayMarginBeginning
        objectName: "list"
        anchors.fill: parent
        clip: true
        cacheBuffer: 0 // what is being made ahead when rows go is complained about
        currentIndex: -1
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        model: root.control.entries
        delegate: TableEntryView {}
        // What is drawn goes beyond its bounds, but the view does not: it would be thrown back
        // whenever a row leaves there and the heights of those not yet seen are estimated anew.
        boundsMovement: Flickable.StopAtBounds
        contentItem.transform: Translate { y: -list.verticalOvershoot }
        bottomMargin: Metrics.covered(root.Window.height)
        onBottomMarginChanged: {
            returnToBounds()
            root.revealSoon()
        }
        onHeightChanged: root.revealSoon()
    }
    FocusRing {
        parent: list.currentItem
        anchors.leftMargin: 0 // a row reaches from edge to edge
        anchors.rightMargin: 0
        z: 1
        shown: keyboard.focusVisible
    }
}
