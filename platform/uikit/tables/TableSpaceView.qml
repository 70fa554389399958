// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The space above or below a section, with the text of its footer, if it has one.
Item {
    id: root

    required property TableEntryView entry

    readonly property real space: entry.index === 0 ? 2 * Metrics.sectionSpace : Metrics.sectionSpace

    implicitHeight: entry.text ? Metrics.footerSpaceAbove + label.implicitHeight + Metrics.footerSpaceBelow : space

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
