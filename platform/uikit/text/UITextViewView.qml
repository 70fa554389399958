// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Text of several lines to edit, as high as it needs. A finger that moves scrolls the page of the
/// view; only the mouse selects by moving.
Item {
    id: root

    required property UITextView control

    implicitHeight: Math.ceil(Math.max(input.implicitHeight, placeholder.visible ? placeholder.implicitHeight : 0))

    TextEdit {
        id: input
        anchors.fill: parent
        text: root.control.text
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        font: Theme.bodyFont
        color: Theme.labelColor
        selectionColor: Theme.selectedTextColor
        selectedTextColor: color
        selectByMouse: !menu.touched
        activeFocusOnPress: !menu.touched
        activeFocusOnTab: true
        inputMethodHints: root.control.inputMethodHints
        cursorDelegate: TextCursor {}

        // A tab would be typed.
        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        onTextChanged: root.control.edit(text)

        Accessible.role: Accessible.EditableText
        Accessible.name: root.control.accessibilityLabel
        Accessible.description: text ? "" : root.control.placeholder
        Accessible.editable: true
        Accessible.multiLine: true
        Accessible.focusable: true
        Accessible.ignored: !enabled

        TextInputFocus { responder: root.control }
        EditMenuTrigger { id: menu }
    }
    Text {
        id: placeholder
        anchors.fill: parent
        visible: !input.text && !input.preeditText
        text: root.control.placeholder
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: input.font
        color: Theme.secondaryLabelColor
        horizontalAlignment: input.effectiveHorizontalAlignment
        LayoutMirroring.enabled: false // mirrored it is already
        Accessible.ignored: true
    }
}
