// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Screens

// The sign-in screen. It scrolls only where it does not fit.
UIViewView {
    id: root

    required property WZTLoginViewController controller

    control: controller.view

    RevealingFlickable {
        id: page

        anchors.fill: parent
        anchors.bottomMargin: Metrics.covered(root.height, Metrics.keyboard)
        contentHeight: indicator.y + indicator.implicitHeight + Metrics.margin

        UIImageViewView {
            id: logo
            control: root.controller.logoImageView
            anchors { top: parent.top; topMargin: 28; horizontalCenter: parent.horizontalCenter }
            width: 62
            height: width * 53 / 67
        }

        UIViewView {
            id: card
            control: root.controller.formContainer
            anchors { top: logo.bottom; topMargin: 24; left: parent.left; leftMargin: 20; right: parent.right; rightMargin: 20 }
            height: loginButton.y + loginButton.height + 20

            UILabelView {
                id: header
                control: root.controller.headerLabel
                anchors { top: parent.top; topMargin: 14; left: parent.left; leftMargin: 14 }
                width: Math.min(implicitWidth, card.width - 14 - 10)
                Accessible.role: Accessible.Heading
            }

            UITextFieldView {
                id: email
                control: root.controller.emailTextField
                anchors { top: header.bottom; topMargin: 14; left: parent.left; leftMargin: 14; right: parent.right; rightMargin: 14 }
                height: 36
            }

            UITextFieldView {
                id: password
                control: root.controller.passwordTextField
                anchors { top: email.bottom; topMargin: 14; left: email.left; right: email.right }
                height: 36
            }

            UIButtonView {
                id: loginButton
                control: root.controller.loginButton
                anchors { top: password.bottom; topMargin: 20; right: parent.right; rightMargin: 20 }
            }

            UIButtonView {
                control: root.controller.forgotPasswordButton
                anchors { top: loginButton.top; bottom: loginButton.bottom; left: parent.left; leftMargin: 20 }
                width: Math.min(implicitWidth, card.width - 20 - 10, card.width - 20 - 20 - loginButton.width - 10)
            }
        }

        UIButtonView {
            id: register
            control: root.controller.registerButton
            anchors { top: card.bottom; topMargin: 20; horizontalCenter: parent.horizontalCenter }
            width: Math.min(implicitWidth, page.width - 2 * Metrics.margin)
        }

        UIActivityIndicatorViewView {
            id: indicator
            control: root.controller.activityIndicator
            anchors { top: register.bottom; topMargin: 20; horizontalCenter: parent.horizontalCenter }
        }
    }
}
