// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One line of text to edit.
Rectangle {
    id: root

    required property UITextField control

    readonly property bool rounded: control.borderStyle === UITextField.RoundedRect
    readonly property real inset: rounded ? Metrics.fieldInset : control.leftViewWidth

    implicitWidth: input.implicitWidth + 2 * inset
    implicitHeight: Math.ceil(line.height) + Metrics.fieldPadding
    color: control.fillColor.toQColor(Traits.dark)
    radius: rounded ? Metrics.fieldRadius : control.layer.cornerRadius
    border.width: rounded ? Metrics.hairline : control.layer.borderWidth
    border.pixelAligned: false
    border.color: rounded ? Theme.separatorColor : control.layer.borderColor.toQColor(Traits.dark)

    FontMetrics {
        id: line
        font: root.control.font.toQFont(Traits.textScale)
    }
    TextFieldInput {
        id: input
        // Screen readers read this property, and would read the secret itself otherwise.
        readonly property string text: control.secureTextEntry ? "" : displayText

        anchors.fill: parent
        anchors.leftMargin: root.inset
        anchors.rightMargin: root.inset
        containmentMask: reach
        control: root.control
        // In a field that does not grow with its text no letter is cut.
        textScale: Traits.textScale * Math.min(1, (root.height - 4) / line.height)

        Item {
            id: reach
            x: -root.inset
            width: root.width
            height: root.height
        }
        Text {
            anchors.fill: parent
            visible: !input.displayText
            text: root.control.placeholder
            textFormat: Text.PlainText
            font: input.font
            color: root.control.placeholderColor.isNil() ? Theme.secondaryLabelColor
                                                         : root.control.placeholderColor.toQColor(Traits.dark)
            elide: Text.ElideRight
            horizontalAlignment: input.effectiveHorizontalAlignment
            LayoutMirroring.enabled: false // mirrored it is already
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
