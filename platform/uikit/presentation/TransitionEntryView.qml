// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One controller of a stack and its motion: a page comes from the side and moves the page below it
/// a little away, a modal comes from below, an alert appears over a dimmed window.
FocusScope {
    id: root

    required property TransitionStack stack
    required property bool page
    /// How far the controller above has come, from 0 to 1.
    required property real covered
    /// Whether a finger moves the controller above away.
    required property bool uncovered

    required property int index
    required property UIViewController controller
    required property int phase
    required property bool blocked
    required property bool concealed
    required property bool overlay

    /// How far the controller has come: from 0, away, to 1, in place.
    property real presence: 0
    property bool placed: false
    /// Whether a finger moves the page away, or has lifted and the page is still on its way.
    property bool swiped: false
    readonly property bool leaving: phase === TransitionStack.Leaving
    readonly property bool arriving: phase === TransitionStack.Entering && !overlay
    readonly property bool slides: !overlay && (swiped || !Traits.reduceMotion)

    // Bound to `focus`, a new item would not take the focus from the item that has it.
    function takeFocus() {
        focus = !blocked && !leaving
    }
    // A transition that is not animated never comes to its first frame: the stack ends it itself.
    // The end is told from the animation alone, never while the stack is still changing.
    function move() {
        content.load()
        transition.stop()
        transition.to = phase === TransitionStack.Leaving ? 0 : 1
        const settled = phase === TransitionStack.Settled
        const drawn = visible && content.status === Loader.Ready
        if (settled || !drawn)
            presence = transition.to
        const whole = overlay || Traits.reduceMotion ? Durations.fade : page ? Durations.page : Durations.modal
        transition.duration = !drawn ? 1 : swiped ? Durations.restOfPage(presence) : whole
        if (!settled)
            transition.start()
    }
    /// Shows the page so far in place, while a finger drags it. putBack() ends this, and leaving.
    function swipe(to: real) {
        transition.stop()
        swiped = true
        presence = Math.max(0, Math.min(to, 1))
    }
    function putBack() {
        if (!swiped || leaving)
            return
        transition.to = 1
        transition.duration = Durations.restOfPage(1 - presence)
        transition.start()
    }

    x: page && slides ? Metrics.direction * width * (1 - presence - 0.3 * covered) : 0
    y: !page && slides ? height * (1 - presence) : 0
    visible: !concealed || uncovered
    onBlockedChanged: takeFocus()
    onLeavingChanged: takeFocus()
    onPhaseChanged: {
        if (placed)
            move()
    }
    Component.onCompleted: {
        placed = true
        move()
        takeFocus()
    }

    NumberAnimation {
        id: transition
        target: root
        property: "presence"
        easing.type: Easing.OutCubic
        onFinished: {
            root.swiped = false
            root.stack.transitionEnded(root.controller)
        }
    }
    Rectangle {
        anchors.fill: parent
        visible: root.overlay
        color: Theme.dimmingColor
        opacity: root.presence * Theme.alertDimming
    }
    MouseArea {
        // Keeps touches from the controllers below an alert, from a controller that leaves, and from
        // one that arrives, which a finger that comes down twice would hit.
        anchors.fill: parent
        z: root.arriving ? 1 : 0
        enabled: root.overlay || root.leaving || root.arriving
        hoverEnabled: enabled
        onWheel: wheel => wheel.accepted = true
    }
    ControllerLoader {
        id: content
        anchors.fill: parent
        controller: root.controller
        wanted: !root.concealed || root.uncovered
        enabled: !root.blocked && !root.leaving
        opacity: root.slides ? 1 : root.presence
        scale: root.overlay && !root.leaving && !Traits.reduceMotion ? 1.1 - 0.1 * root.presence : 1
    }
    Rectangle {
        anchors.fill: parent
        visible: root.page && root.covered > 0
        color: Theme.dimmingColor
        opacity: root.covered * Theme.pageDimming
    }
}
