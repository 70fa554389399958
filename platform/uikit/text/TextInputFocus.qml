// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Put into an item that edits text: the item has the keyboard while `responder` is first
/// responder, whichever of the two comes first.
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
