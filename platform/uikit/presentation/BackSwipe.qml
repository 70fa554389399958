// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The way back by finger: a drag from the leading edge moves the top page. Lifted past the middle
/// or with a fling, the finger leaves the page; otherwise the page returns.
Item {
    id: root

    required property UINavigationController controller
    required property TransitionStackView pages

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
        interval: Durations.fingerRest
        onTriggered: root.speed = 0
    }
    Connections {
        target: root.pages
        function onWidthChanged() {
            drag.follow()
        }
    }
    DragHandler {
        id: drag

        property TransitionEntryView page: null
        /// Where the finger has the page, in points from its leading edge.
        property real grip: 0
        /// Whether the finger went along the edge before it went across: it scrolls.
        property bool along: false

        /// How far that point of the window is from the edge.
        function reach(at: point): real {
            const x = root.pages.mapFromItem(null, at).x
            return Metrics.direction > 0 ? x : root.pages.width - x
        }
        function follow() {
            page?.swipe(1 - (reach(centroid.scenePosition) - grip) / root.pages.width)
        }
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
        dragThreshold: along ? root.pages.width : 10 // along the edge: a distance that no drag reaches
        onCentroidChanged: {
            const x = Math.abs(centroid.scenePosition.x - centroid.scenePressPosition.x)
            const y = Math.abs(centroid.scenePosition.y - centroid.scenePressPosition.y)
            if (x === 0 && y === 0)
                along = false // it has come down
            else if (!active && y >= 10 && y >= x)
                along = true
        }
        onActiveChanged: {
            if (active) {
                page = root.pages.topEntry()
                grip = reach(centroid.scenePressPosition) - (1 - page.presence) * root.pages.width
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
            follow()
        }
    }
}
