// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The plain look of a row: an image, when there is one, a text, and a smaller one below. Enlarged
/// text takes as many lines as it needs.
Item {
    id: root

    required property UITableViewCell control

    implicitHeight: Math.max(Metrics.row, texts.implicitHeight + 2 * Metrics.rowMargin)

    UIImageViewView {
        id: image
        anchors.left: parent.left
        anchors.leftMargin: Metrics.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.rowImage
        height: width
        visible: control.image.name !== ""
        control: root.control.imageView
    }
    Column {
        id: texts
        anchors.left: image.visible ? image.right : parent.left
        anchors.right: parent.right
        anchors.leftMargin: Metrics.margin
        anchors.rightMargin: Metrics.margin
        anchors.verticalCenter: parent.verticalCenter
        spacing: detail.text ? Metrics.lineSpacing : 0

        UILabelView {
            objectName: "textLabel"
            width: texts.width
            control: root.control.textLabel
            lines: Traits.textScale > 1 ? 0 : control.numberOfLines
            Accessible.ignored: true // the row says it
        }
        UILabelView {
            id: detail
            objectName: "detailTextLabel"
            width: texts.width
            control: root.control.detailTextLabel
            lines: Traits.textScale > 1 ? 0 : control.numberOfLines
            Accessible.ignored: true
        }
    }
}
