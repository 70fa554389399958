// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// An alert: a card in the middle of the part of the window that the on-screen keyboard leaves
/// free. Texts and fields scroll where they do not fit, and so do the buttons.
FocusScope {
    id: root

    required property UIAlertController controller

    readonly property real room: height - Metrics.covered(height, Metrics.keyboard) - 2 * Metrics.margin

    focus: true

    Keys.onEscapePressed: controller.triggerCancel()
    Keys.onReturnPressed: controller.triggerDefault()
    Keys.onEnterPressed: controller.triggerDefault()

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.round(Metrics.margin + (root.room - height) / 2)
        width: Math.min(Metrics.alertWidth, root.width - 2 * Metrics.margin)
        height: body.height + buttons.height
        radius: Metrics.alertRadius
        color: Theme.alertColor
        focus: true // until a field has it

        Accessible.role: root.controller.textFields.length > 0 ? Accessible.Dialog : Accessible.AlertMessage
        Accessible.name: root.controller.title
        Accessible.description: root.controller.message
        Accessible.ignored: !enabled

        RevealingFlickable {
            id: body
            width: parent.width
            height: Math.min(contentHeight, root.room - buttons.height)
            contentHeight: texts.height

            AlertContentView {
                id: texts
                width: parent.width
                controller: root.controller
            }
        }
        RevealingFlickable {
            id: buttons
            anchors.bottom: parent.bottom
            width: parent.width
            height: Math.min(contentHeight, Math.max(root.room / 2, root.room - texts.height))
            contentHeight: actions.height

            AlertActionsView {
                id: actions
                width: parent.width
                controller: root.controller
            }
        }
    }
}
