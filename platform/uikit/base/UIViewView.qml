// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A view's background, border and taps; its contents are put inside:
///
///     UIViewView { control: root.controller.view; anchors.fill: parent; UILabelView { ... } }
Rectangle {
    id: root

    required property UIView control

    color: control.backgroundColor.toQColor(Traits.dark)
    radius: control.layer.cornerRadius
    border.width: control.layer.borderWidth
    border.pixelAligned: false
    border.color: control.layer.borderColor.toQColor(Traits.dark)
    clip: control.layer.masksToBounds

    TapArea { receiver: root.control }
}
