// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A text of an alert, as many lines as it needs.
Text {
    visible: text
    textFormat: Text.PlainText
    color: Theme.labelColor
    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !text || !enabled
}
