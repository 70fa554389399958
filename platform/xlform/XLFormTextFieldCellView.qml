// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import XLForm

/// A row of one line: the title and the text beside it, or below where the title takes too much of
/// the row.
Item {
    id: root

    required property XLFormTextFieldCell control

    readonly property bool stacked: title.implicitWidth > 0.4 * width
    readonly property real above: Metrics.rowMargin + title.height

    implicitHeight: Math.max(Metrics.row, above + (stacked ? field.implicitHeight : Metrics.rowMargin))

    UILabelView {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: Metrics.margin
        y: root.stacked ? Metrics.rowMargin : Math.round((root.height - height) / 2)
        width: Math.min(implicitWidth, root.width - 2 * Metrics.margin)
        control: root.control.textLabel
        Accessible.ignored: true // the field says it
    }
    UITextFieldView {
        id: field
        anchors.fill: parent
        anchors.leftMargin: Metrics.margin + (root.stacked ? 0 : title.width + Metrics.margin)
        anchors.rightMargin: Metrics.margin
        anchors.topMargin: root.stacked ? root.above : 0
        control: root.control.textField
    }
}
