// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Views

Item {
    id: root

    required property WZTThanksTableViewCell control

    implicitHeight: heart.height + 4 + thanks.implicitHeight + 4

    UIImageViewView {
        id: heart
        objectName: "heart"
        control: root.control.heartImageView
        anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
        width: 30
        height: 30
    }
    UILabelView {
        id: thanks
        objectName: "thanks"
        control: root.control.thanksLabel
        lines: Traits.textScale > 1 ? 0 : control.numberOfLines
        anchors { top: heart.bottom; topMargin: 4; left: parent.left; leftMargin: 10; right: parent.right; rightMargin: 10 }
    }
}
