// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Text on as many lines as the label may have; without text it takes no height.
Text {
    required property UILabel control
    /// The lines at most; 0 for as many as the text needs.
    property int lines: control.numberOfLines

    height: text ? implicitHeight : 0
    text: control.text
    textFormat: Text.PlainText
    // Qt loads the font of an empty text as well, so it takes one that is loaded already.
    font: text ? control.font.toQFont(Traits.textScale) : Theme.bodyFont
    color: control.textColor.toQColor(Traits.dark)
    elide: lines > 0 ? Text.ElideRight : Text.ElideNone
    wrapMode: lines === 1 ? Text.NoWrap : Text.Wrap
    maximumLineCount: lines > 0 ? lines : 0x7fffffff
    horizontalAlignment: control.textAlignment === UILabel.Center ? Text.AlignHCenter : Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: control.accessibilityLabel
    Accessible.ignored: !text || !enabled
}
