// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A picture, fitted into the view.
Item {
    id: root

    required property UIImageView control

    clip: control.layer.masksToBounds

    Accessible.role: Accessible.Graphic
    Accessible.name: control.accessibilityLabel
    Accessible.ignored: !control.accessibilityLabel || !enabled

    ImagePicture {
        anchors.fill: parent
        name: root.control.image.name
        tint: root.control.image.isTemplate ? root.control.tintColor.toQColor(Traits.dark) : "transparent"
    }
}
