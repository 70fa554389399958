// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One line of text to edit. The field is first responder while it has the keyboard, whichever of
/// the two comes first.
Rectangle {
    id: root

    required property UITextField control

    readonly property bool rounded: control.borderStyle === UITextField.RoundedRect
    readonly property real inset: rounded ? Metrics.fieldInset : control.leftViewWidth

    implicitWidth: input.implicitWidth + 2 * inset
    implicitHeight: input.implicitHeight + 12
    color: control.fillColor.drawn(Traits.dark)
    radius: rounded ? Metrics.fieldRadius : control.layer.cornerRadius
    border.width: rounded ? Metrics.hairline : control.layer.borderWidth
    border.color: rounded ? Traits.separatorColor : control.layer.borderColor.drawn(Traits.dark)

    TextInput {
        id: input
        anchors.fill: parent
        anchors.leftMargin: root.inset
        anchors.rightMargin: root.inset
        containmentMask: reach
        verticalAlignment: TextInput.AlignVCenter
        clip: true
        text: root.control.text
        font: root.control.font.drawn(Traits.textScale)
        color: root.control.textColor.drawn(Traits.dark)
        selectionColor: Qt.alpha(Traits.accentColor, 0.3)
        selectedTextColor: color
        selectByMouse: true
        activeFocusOnTab: true
        echoMode: root.control.secureTextEntry ? TextInput.Password : TextInput.Normal
        passwordCharacter: "\u2022"
        inputMethodHints: root.control.inputMethodHints
        cursorDelegate: TextCursor {}

        // After the item, which has put what was being composed in place; and no further, or
        // whatever the field stands in would take Return as well.
        Keys.priority: Keys.AfterItem
        Keys.onReturnPressed: event => event.accepted = true
        Keys.onEnterPressed: event => event.accepted = true

        onAccepted: root.control.returnPressed()
        onTextChanged: root.control.edit(text)
        onActiveFocusChanged: {
            if (activeFocus)
                root.control.becomeFirstResponder()
            else
                root.control.resignFirstResponder()
        }
        Component.onCompleted: {
            if (root.control.firstResponder)
                forceActiveFocus()
        }

        Accessible.role: Accessible.EditableText
        Accessible.name: root.control.accessibilityLabel
        Accessible.editable: true
        Accessible.focusable: true
        Accessible.passwordEdit: root.control.secureTextEntry
        Accessible.ignored: !enabled

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
            color: root.control.placeholderColor.drawn(Traits.dark)
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
    Connections {
        target: root.control
        function onFirstResponderChanged() {
            if (root.control.firstResponder)
                input.forceActiveFocus()
            else if (input.activeFocus)
                input.focus = false
        }
    }
}
