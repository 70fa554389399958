// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// Draws the controllers of a stack, each in its transition: pages beside one another, presented
/// ones over one another.
FocusScope {
    id: root

    required property TransitionStack stack
    property bool pages: false
    /// Whether no controller is in a transition.
    readonly property bool still: entries.count > 0 && topEntry()?.phase === TransitionStack.Settled

    /// The drawing of the topmost controller.
    function topEntry(): TransitionEntryView {
        return entries.itemAt(entries.count - 1) as TransitionEntryView
    }

    Repeater {
        id: entries
        model: root.stack

        TransitionEntryView {
            readonly property TransitionEntryView above:
                entries.count > index + 1 ? entries.itemAt(index + 1) as TransitionEntryView : null

            stack: root.stack
            page: root.pages
            covered: above ? above.presence : 0
            uncovered: above ? above.swiped : false
            width: root.width
            height: root.height
        }
    }
    Component.onCompleted: stack.attachView()
    Component.onDestruction: stack?.detachView()
}
