// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// What stands above or below a section: its text, or the platform's space.
Item {
    id: root

    required property TableEntryView entry

    readonly property bool isHeader: entry.position === 0
    readonly property real space: isHeader && entry.index === 0 ? 2 * Metrics.sectionSpace : Metrics.sectionSpace

    implicitHeight: !entry.text ? space : label.implicitHeight + (isHeader ? space + 7 : 7 + 11)

    Text {
        id: label
        anchors {
            left: parent.left
            right: parent.right
            margins: Metrics.margin
        }
        y: root.isHeader ? root.height - height - 7 : 7
        text: root.entry.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        font: root.entry.table.sectionFont.toQFont(Traits.textScale)
        color: Traits.secondaryLabelColor

        Accessible.role: root.isHeader ? Accessible.Heading : Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !text || !enabled
    }
}
