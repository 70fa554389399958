// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One line of text; without text it takes no height.
Text {
    id: root

    required property UILabel control

    height: text ? implicitHeight : 0
    text: control.text
    textFormat: Text.PlainText
    font: control.font.drawn(Traits.textScale)
    color: control.textColor.drawn(Traits.dark)
    elide: Text.ElideRight
    maximumLineCount: 1
    horizontalAlignment: control.textAlignment === UILabel.Center ? Text.AlignHCenter : undefined

    Accessible.role: Accessible.StaticText
    Accessible.name: control.accessibilityLabel
    Accessible.ignored: !text || !enabled
}
