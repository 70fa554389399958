// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// Draws the controllers of a stack, each in its transition: pages beside one another, presented
/// ones over one another.
FocusScope {
    id: root

    required property UITransitionStack stack
    property bool pages: false

    Repeater {
        id: entries
        model: root.stack

        UITransitionEntryView {
            readonly property UITransitionEntryView above:
                entries.count > index + 1 ? entries.itemAt(index + 1) as UITransitionEntryView : null

            stack: root.stack
            page: root.pages
            covered: above ? above.presence : 0
            width: root.width
            height: root.height
        }
    }
    Component.onCompleted: stack.attachView()
    Component.onDestruction: stack?.detachView()
}
