// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The editor of a field's text.
TextInput {
    id: root

    required property UITextField control
    property real textScale: Traits.textScale

    // The edited text keeps its line breaks, which are drawn as blanks: setting the text would end
    // the composing, the selection and the undo history.
    function show() {
        if (!control.shows(text))
            text = control.text
    }

    verticalAlignment: TextInput.AlignVCenter
    clip: true
    font: control.font.toQFont(textScale)
    color: control.textColor.toQColor(Traits.dark)
    selectionColor: Theme.selectedTextColor
    selectedTextColor: color
    selectByMouse: !menu.touched
    activeFocusOnPress: !menu.touched
    activeFocusOnTab: true
    echoMode: control.secureTextEntry ? TextInput.Password : TextInput.Normal
    passwordCharacter: "\u2022"
    inputMethodHints: control.inputMethodHints
    cursorDelegate: TextCursor {}

    // After the item, which commits the text that is being composed. Accepted, or the page of the
    // field would take Return as well.
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
