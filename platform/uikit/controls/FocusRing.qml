// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Shows around its parent that it has the keyboard.
Rectangle {
    required property bool shown

    anchors.fill: parent
    anchors.leftMargin: -Metrics.focusRingMargin
    anchors.rightMargin: -Metrics.focusRingMargin
    visible: shown
    color: "transparent"
    radius: 6
    border.width: Metrics.focusRing
    border.color: Theme.accentColor
}
