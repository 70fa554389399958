// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The text below a section.
Item {
    id: root

    required property TableEntryView entry

    implicitHeight: Metrics.footerSpaceAbove + label.implicitHeight + Metrics.footerSpaceBelow

    Text {
        id: label
        anchors {
            left: parent.left
            right: parent.right
            margins: Metrics.margin
        }
        y: Metrics.footerSpaceAbove
        text: root.entry.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        font: Theme.footnoteFont
        color: Theme.secondaryLabelColor

        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !text || !enabled
    }
}
