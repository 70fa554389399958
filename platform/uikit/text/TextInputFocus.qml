// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Put into an item that edits text: gives the item the keyboard when `responder` becomes first
/// responder, and the other way round.
Item {
    id: root

    required property UIResponder responder

    Component.onCompleted: {
        if (responder.firstResponder)
            parent.forceActiveFocus()
    }

    Connections {
        target: root.parent
        function onActiveFocusChanged() {
            if (root.parent.activeFocus)
                root.responder.becomeFirstResponder()
            else
                root.responder.resignFirstResponder()
        }
    }
    Connections {
        target: root.responder
        function onFirstResponderChanged() {
            if (root.responder.firstResponder)
                root.parent.forceActiveFocus()
            else if (root.parent.activeFocus)
                root.parent.focus = false
        }
    }
}
