// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A hairline across its parent, between rows.
Rectangle {
    anchors.left: parent.left
    anchors.right: parent.right
    height: Metrics.hairline
    color: Traits.separatorColor
}
