// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A grey spinner.
Spinner {
    required property UIActivityIndicatorView control

    visible: !control.hidden
    spinning: control.animating

    Accessible.role: Accessible.ProgressBar
    Accessible.name: control.accessibilityLabel || qsTr("Loading")
    Accessible.ignored: !control.animating || !enabled
}
