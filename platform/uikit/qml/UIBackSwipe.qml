// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The way back by finger: drags from the leading edge move the top page, and the page is left
/// where it is let go of past the middle or with a fling.
Item {
    id: root

    required property UINavigationController controller
    required property UITransitionStackView pages

    readonly property bool possible: enabled && pages.still && controller.canGoBack
        && !controller.topViewController.navigationItem.leftBarButtonItem
    /// Points a second towards the way back, when it was seen last.
    property real speed: 0

    width: Metrics.swipeEdge
    visible: controller.canGoBack

    onPossibleChanged: if (!possible)
        drag.end(false)

    Timer {
        id: rest
        interval: 100 // a finger that stood still for that long has no speed
        onTriggered: root.speed = 0
    }
    DragHandler {
        id: drag

        property UITransitionEntryView page: null
        /// How far the page had come when the finger took it.
        property real presence: 1

        function end(leaves: bool) {
            const swiped = page
            page = null
            if (!swiped)
                return
            if (!leaves || !root.controller.goBack())
                swiped.putBack()
        }

        target: null
        yAxis.enabled: false
        enabled: root.possible
        dragThreshold: 10
        onActiveChanged: {
            if (active) {
                page = root.pages.topEntry()
                presence = page.presence
                root.speed = 0
            } else {
                end(root.speed > 300 || page?.presence < 0.5 && root.speed > -300)
            }
        }
        onCanceled: end(false)
        onTranslationChanged: {
            if (!active)
                return
            root.speed = Metrics.direction * centroid.velocity.x
            rest.restart()
            page?.swipe(presence - Metrics.direction * translation.x / root.pages.width)
        }
    }
}
