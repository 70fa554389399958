// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A bar with the top page's title and the way back, and the pages below it.
FocusScope {
    id: root

    required property UINavigationController controller

    focus: true

    // A page that has a use for these keys takes them first.
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Escape)
            InputMethod.commit() // text that is being composed counts
        event.accepted = event.key === Qt.Key_Escape ? controller.escape()
            : event.matches(StandardKey.Back) && controller.goBack()
    }

    Connections {
        target: root.controller
        function onTopViewControllerChanged() {
            if (root.activeFocus)
                pageStack.forceActiveFocus() // the back button had it, and went
        }
    }
    UINavigationBarView {
        id: bar
        anchors.left: parent.left
        anchors.right: parent.right
        controller: root.controller
    }
    TransitionStackView {
        id: pageStack
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        stack: root.controller.pages
        pages: true
    }
    Loader {
        readonly property bool needed: root.controller.canGoBack

        anchors.top: pageStack.top
        anchors.bottom: pageStack.bottom
        anchors.left: parent.left
        onNeededChanged: if (needed && status === Loader.Null)
            setSource("BackSwipe.qml", {"controller": root.controller, "pages": pageStack})
    }
}
