// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// The selected tab's controller and the tab bar below it.
FocusScope {
    id: root

    required property UITabBarController controller

    property ControllerLoader shown: null

    focus: true

    Repeater {
        model: root.controller.viewControllers

        ControllerLoader {
            id: tab

            required property UIViewController modelData
            required property int index

            readonly property bool selected: index === root.controller.tabBar.selectedIndex

            // The bar keeps the keyboard while tabs are chosen with it.
            function takeFocus() {
                if (selected)
                    root.shown = tab
                if (!bar.activeFocus)
                    focus = selected
            }

            anchors.top: parent.top
            anchors.bottom: bar.top
            width: root.width
            controller: modelData
            wanted: selected
            visible: selected
            enabled: selected
            focus: false
            onSelectedChanged: takeFocus()
            Component.onCompleted: takeFocus()
        }
    }
    UITabBarView {
        id: bar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        control: root.controller.tabBar

        // The keys for the way back are for the tab that is shown.
        Keys.forwardTo: root.shown?.item ?? []
    }
}
