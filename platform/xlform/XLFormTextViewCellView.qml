// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import XLForm

/// A row of several lines: the title, and below it the text, with room for a few lines at first.
Item {
    id: root

    required property XLFormTextViewCell control

    implicitHeight: text.y + Math.max(text.implicitHeight, 4 * title.implicitHeight) + Metrics.rowMargin

    UILabelView {
        id: title
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Metrics.margin
        y: Metrics.rowMargin
        control: root.control.textLabel
        Accessible.ignored: true // the text view says it
    }
    UITextViewView {
        id: text
        anchors.fill: parent
        anchors.margins: Metrics.margin
        anchors.topMargin: title.y + title.height + 4
        anchors.bottomMargin: Metrics.rowMargin
        control: root.control.textView
    }
}
