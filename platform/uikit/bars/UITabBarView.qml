// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// The bar of tabs, which stand in the middle where it is wide.
FocusScope {
    id: root

    required property UITabBar control

    /// An arrow moves the keyboard to the tab at `index`; with Alt it is a way back.
    function move(event: KeyEvent, index: int) {
        event.accepted = !(event.modifiers & Qt.AltModifier)
        if (event.accepted)
            items.itemAt(index)?.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Metrics.tabBar

    Accessible.role: Accessible.PageTabList
    Accessible.name: control.accessibilityLabel
    Accessible.ignored: !enabled

    Rectangle {
        anchors.fill: parent
        color: Theme.barColor
    }
    Row {
        id: tabs
        anchors.horizontalCenter: parent.horizontalCenter
        height: parent.height

        Repeater {
            id: items
            model: root.control.items

            UITabBarItemView {
                required property UITabBarItem modelData
                required property int index

                item: modelData
                selected: index === root.control.selectedIndex
                tint: root.control.tintColor.toQColor(Traits.dark)
                width: Math.min(Metrics.widestTab, root.width / items.count)
                height: tabs.height
                onTriggered: root.control.choose(index)
                Keys.onLeftPressed: event => root.move(event, index - Metrics.direction)
                Keys.onRightPressed: event => root.move(event, index + Metrics.direction)
            }
        }
    }
    Separator { width: parent.width }
}
