// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// An alert's buttons: two side by side if their titles fit, otherwise one below the other, with
/// a cancel button that came first at the end.
Item {
    id: root

    required property UIAlertController controller

    readonly property real titleRoom: width / 2 - Metrics.margin
    readonly property bool sideBySide: actions.count === 2
        && fits(controller.actions[0].title, metrics.font)
        && fits(controller.actions[1].title, metrics.font)
    readonly property int moved: !sideBySide && actions.count > 1
        && controller.actions[0].style === UIAlertAction.Cancel ? 1 : 0
    readonly property real actionHeight: Math.max(Metrics.row, Math.ceil(metrics.height) + Metrics.buttonPadding)

    // A binding hands over the font, and so follows it.
    function fits(title: string, font: font): bool {
        return metrics.advanceWidth(title) <= titleRoom
    }

    implicitHeight: actionHeight * (sideBySide ? 1 : actions.count)

    FontMetrics {
        id: metrics
        font: Theme.headlineFont
    }
    Repeater {
        id: actions
        model: root.controller.actions

        UIAlertActionView {
            required property UIAlertAction modelData
            required property int index

            readonly property int place: (index - root.moved + actions.count) % actions.count
            readonly property bool last: place === actions.count - 1

            action: modelData
            x: root.sideBySide && last === (Metrics.direction > 0) ? width : 0
            y: root.sideBySide ? 0 : place * height
            width: root.sideBySide ? root.width / 2 : root.width
            height: root.actionHeight
            roundsLeft: root.sideBySide ? !last : last
            roundsRight: last
            beside: root.sideBySide && last
            onTriggered: root.controller.trigger(action)
        }
    }
}
