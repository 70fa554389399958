// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Where a field's text is edited.
TextInput {
    id: root

    required property UITextField control
    property real textScale: Traits.textScale

    // What is edited keeps its line breaks, which are drawn as blanks: to set it ends what is being
    // composed, the selection and the undo history.
    function show() {
        if (!control.shows(text))
            text = control.text
    }

    verticalAlignment: TextInput.AlignVCenter
    clip: true
    font: control.font.toQFont(textScale)
    color: control.textColor.toQColor(Traits.dark)
    selectionColor: Qt.alpha(Traits.accentColor, 0.3)
    selectedTextColor: color
    selectByMouse: !menu.touched
    activeFocusOnPress: !menu.touched
    activeFocusOnTab: true
    echoMode: control.secureTextEntry ? TextInput.Password : TextInput.Normal
    passwordCharacter: "\u2022"
    inputMethodHints: control.inputMethodHints
    cursorDelegate: TextCursor {}

    // After the item, which has put what was being composed in place; and no further, or whatever
    // the field stands in would take Return as well.
    Keys.priority: Keys.AfterItem
    Keys.onReturnPressed: event => event.accepted = true
    Keys.onEnterPressed: event => event.accepted = true

    onAccepted: control.returnPressed()
    onTextChanged: control.edit(text)
    onActiveFocusChanged: ensureVisible(activeFocus ? cursorPosition : 0)
    onControlChanged: show()
    Component.onCompleted: show()

    Accessible.role: Accessible.EditableText
    Accessible.name: control.accessibilityLabel
    Accessible.description: length > 0 || control.placeholder === control.accessibilityLabel ? "" : control.placeholder
    Accessible.editable: true
    Accessible.focusable: true
    Accessible.ignored: !enabled

    Connections {
        target: root.control
        function onChanged() {
            root.show()
        }
    }
    HoverHandler { cursorShape: Qt.IBeamCursor }
    TextInputFocus { responder: root.control }
    SecretTextFilter {
        editor: root
        enabled: root.control.secureTextEntry
    }
    EditMenuTrigger {
        id: menu
        secret: root.control.secureTextEntry
    }
}
