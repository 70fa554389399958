// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Views

Item {
    id: root

    required property WZTHeaderTableViewCell control

    implicitHeight: logo.height + 10

    UIImageViewView {
        id: logo
        control: root.control.logoImageView
        anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
        width: 62
        height: width * 0.7910447761
    }
}
