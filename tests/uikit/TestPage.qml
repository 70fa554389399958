// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A page with a title in its middle and something to have the keyboard.
Rectangle {
    id: root

    required property UIViewController controller

    objectName: controller.navigationItem.title
    color: Theme.backgroundColor

    TextInput {
        objectName: "input"
        anchors.centerIn: parent
        width: 200
        focus: true
        activeFocusOnTab: true
        text: root.controller.navigationItem.title
        font: Theme.bodyFont
        color: Theme.labelColor
        horizontalAlignment: TextInput.AlignHCenter

        Accessible.role: Accessible.EditableText
        Accessible.name: root.controller.navigationItem.title
        Accessible.ignored: !enabled
    }
}
