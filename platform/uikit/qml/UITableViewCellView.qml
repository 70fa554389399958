// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The plain look of a row: an image, when there is one, and one line of text.
Item {
    id: root

    required property UITableViewCell control

    implicitHeight: Math.max(Metrics.row, label.implicitHeight + 2 * 11)

    UIImagePicture {
        id: image
        anchors.left: parent.left
        anchors.leftMargin: Metrics.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.rowImage
        height: width
        visible: name !== ""
        name: root.control.imageView.image.name
        tint: root.control.imageView.tintColor.drawn(Traits.dark)
    }
    UILabelView {
        id: label
        objectName: "textLabel"
        anchors.left: image.visible ? image.right : parent.left
        anchors.right: parent.right
        anchors.leftMargin: Metrics.margin
        anchors.rightMargin: Metrics.margin
        anchors.verticalCenter: parent.verticalCenter
        control: root.control.textLabel
        Accessible.ignored: true // the row says it
    }
}
