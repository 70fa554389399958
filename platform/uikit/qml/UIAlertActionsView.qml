// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// An alert's buttons: two side by side if their titles fit, otherwise one below the other.
Grid {
    id: root

    required property UIAlertController controller

    readonly property real titleRoom: width / 2 - Metrics.margin
    readonly property bool sideBySide: actions.count === 2
        && fits(controller.actions[0].title, metrics.font)
        && fits(controller.actions[1].title, metrics.font)

    function fits(title: string, font: font): bool {
        return metrics.advanceWidth(title) <= titleRoom
    }

    columns: sideBySide ? 2 : 1

    FontMetrics {
        id: metrics
        font: Traits.headlineFont
    }
    Repeater {
        id: actions
        model: root.controller.actions

        UIAlertActionView {
            required property UIAlertAction modelData
            required property int index

            readonly property bool last: index === actions.count - 1

            action: modelData
            width: root.width / root.columns
            roundsLeft: root.sideBySide ? !last : last
            roundsRight: last
            beside: index > 0 && root.sideBySide
            onTriggered: root.controller.trigger(action)
        }
    }
}
