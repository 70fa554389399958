// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Views

/// A glossy button: its fill, shine and border below its title. Its implicit size is the size of its
/// frame, or fits the title if the frame is empty.
ControlArea {
    id: root

    required property WZTGlossyButton control

    readonly property uiEdgeInsets insets: control.contentEdgeInsets
    readonly property rect frame: control.layer.bounds

    implicitWidth: frame.width || title.implicitWidth + insets.left + insets.right
    implicitHeight: frame.height || title.implicitHeight + insets.top + insets.bottom
    receiver: control

    Accessible.role: Accessible.Button
    Accessible.name: control.accessibilityLabel
    Accessible.pressed: control.highlighted
    Accessible.focusable: true
    Accessible.ignored: !enabled
    Accessible.onPressAction: activate()

    Rectangle {
        anchors.fill: parent
        radius: root.control.layer.cornerRadius
        color: root.control.backgroundColor.toQColor(Traits.dark)
    }
    SublayersPicture {
        anchors.fill: parent
        visible: root.frame.width > 0 && root.frame.height > 0
        view: root.control
    }
    Rectangle {
        anchors.fill: parent
        radius: root.control.layer.cornerRadius
        color: "transparent"
        border.width: root.control.layer.borderWidth
        border.pixelAligned: false
        border.color: root.control.layer.borderColor.toQColor(Traits.dark)
    }
    Text {
        id: title
        anchors.fill: parent
        anchors.leftMargin: Math.max(Metrics.margin / 2, root.insets.left)
        anchors.rightMargin: Math.max(Metrics.margin / 2, root.insets.right)
        text: root.control.title
        textFormat: Text.PlainText
        font: root.control.titleFont.toQFont(Traits.textScale)
        color: root.control.titleColor.toQColor(Traits.dark)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    FocusRing {
        radius: root.control.layer.cornerRadius + 2
        anchors.topMargin: -4
        anchors.bottomMargin: -4
        shown: root.focusVisible
    }
}
