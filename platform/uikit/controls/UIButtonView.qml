// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A plain button: a title that dims while a finger is on it.
ControlArea {
    id: root

    required property UIButton control

    readonly property uiEdgeInsets insets: control.contentEdgeInsets

    implicitWidth: title.implicitWidth + insets.left + insets.right
    implicitHeight: title.implicitHeight + insets.top + insets.bottom
    receiver: control

    Accessible.role: Accessible.Button
    Accessible.name: control.accessibilityLabel
    Accessible.pressed: control.highlighted
    Accessible.focusable: true
    Accessible.ignored: !enabled
    Accessible.onPressAction: activate()

    Text {
        id: title
        anchors.fill: parent
        anchors.leftMargin: root.insets.left
        anchors.rightMargin: root.insets.right
        text: root.control.title
        textFormat: Text.PlainText
        font: root.control.titleFont.toQFont(Traits.textScale)
        color: root.control.titleColor.toQColor(Traits.dark)
        opacity: root.control.highlighted ? Metrics.highlightedOpacity : 1
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true

        Behavior on opacity {
            enabled: !root.control.highlighted && !Traits.reduceMotion
            NumberAnimation { duration: Durations.release }
        }
    }
    FocusRing { shown: root.focusVisible }
}
