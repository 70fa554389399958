// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The whole window: its root controller and the controllers presented over it.
FocusScope {
    id: root

    required property UIWindow control

    focus: true
    LayoutMirroring.enabled: Traits.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Rectangle {
        anchors.fill: parent
        color: Theme.backgroundColor
    }
    TransitionStackView {
        anchors.fill: parent
        focus: true
        stack: root.control.presentation
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
