// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Views

/// The account card: heading and button on one line, then each value above its underline, which is
/// as wide as the value, and its caption.
Item {
    id: root

    required property WZTAccountTableViewCell control

    /// The maximum width of a text in the card.
    readonly property real maximumTextWidth: card.width - 2 * 14

    implicitHeight: since.y + since.height + 14

    UIViewView {
        id: card
        control: root.control.cardBackgroundView
        anchors { fill: parent; leftMargin: 16; rightMargin: 16 }

        UILabelView {
            id: header
            control: root.control.headerLabel
            anchors { top: parent.top; topMargin: 14; left: parent.left; leftMargin: 14 }
            width: Math.max(0, Math.min(implicitWidth, root.maximumTextWidth - edit.width - 10))
            Accessible.role: Accessible.Heading
        }
        UIButtonView {
            id: edit
            control: root.control.editButton
            anchors { right: parent.right; rightMargin: 14; verticalCenter: header.verticalCenter }
            width: Math.min(implicitWidth, root.maximumTextWidth)
        }
        UIViewView {
            id: dividerOne
            control: root.control.dividerOneView
            anchors { top: header.bottom; topMargin: 14; left: parent.left; leftMargin: -16; right: parent.right; rightMargin: -16 }
            height: 1
        }

        UILabelView {
            id: userName
            control: root.control.userNameLabel
            anchors { top: dividerOne.bottom; topMargin: 10; left: parent.left; leftMargin: 14 }
            width: Math.min(implicitWidth, root.maximumTextWidth)
        }
        UIViewView {
            id: dividerTwo
            control: root.control.dividerTwoView
            anchors { top: userName.bottom; topMargin: 2; left: userName.left; right: userName.right }
            height: 1
        }
        UILabelView {
            id: userNameTitle
            control: root.control.userNameTitleLabel
            anchors { top: dividerTwo.bottom; topMargin: 2; left: parent.left; leftMargin: 14 }
            Accessible.ignored: userName.text !== "" || !enabled
        }

        UILabelView {
            id: email
            control: root.control.emailLabel
            anchors { top: userNameTitle.bottom; topMargin: 14; left: parent.left; leftMargin: 14 }
            width: Math.min(implicitWidth, root.maximumTextWidth)
        }
        UIViewView {
            id: dividerThree
            control: root.control.dividerThreeView
            anchors { top: email.bottom; topMargin: 2; left: email.left; right: email.right }
            height: 1
        }
        UILabelView {
            id: emailTitle
            control: root.control.emailTitleLabel
            anchors { top: dividerThree.bottom; topMargin: 2; left: parent.left; leftMargin: 14 }
            Accessible.ignored: email.text !== "" || !enabled
        }

        UILabelView {
            id: since
            control: root.control.userSinceLabel
            anchors { top: emailTitle.bottom; topMargin: 14; horizontalCenter: parent.horizontalCenter }
            width: Math.min(implicitWidth, root.maximumTextWidth)
        }
    }
}
