// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The spinner above the first row of a table that is pulled down or refreshes. The table refreshes
/// when it is pulled far enough down and let go, and by key.
Item {
    id: root

    required property UIRefreshControl control
    required property ListView list

    readonly property real pulled: Math.max(0, list.originY - list.contentY - list.verticalOvershoot)
    readonly property real margin: control.refreshing ? height : 0
    /// Whether the drag under way began while nothing was refreshed.
    property bool armed: false

    /// Puts the table where it belongs, below the spinner or not.
    function settle() {
        if (list.dragging)
            return
        if (list.contentY > list.originY || control.refreshing && pulled >= height) {
            list.topMargin = margin // the list need not move, or moves there by itself
        } else {
            list.cancelFlick()
            moving.from = list.originY - pulled
            moving.to = list.originY - margin
            list.topMargin = margin // the list jumps to it, but is drawn again only when it moves
            moving.restart()
        }
    }

    y: Math.min(0, pulled - height)
    width: parent.width
    height: Metrics.refreshControl
    visible: control.refreshing || pulled > 0 // screen readers hear that it comes and goes

    Accessible.role: Accessible.ProgressBar
    Accessible.name: control.accessibilityLabel || qsTr("Loading")
    Accessible.ignored: !control.refreshing || !enabled

    onMarginChanged: settle()

    Spinner {
        anchors.centerIn: parent
        spinning: root.control.refreshing
        spokes: spinning ? 8 : Math.min(8, 8 * root.pulled / Metrics.pullToRefresh)
    }
    NumberAnimation {
        id: moving
        target: root.list
        property: "contentY"
        duration: Durations.refresh
        easing.type: Easing.OutQuad
    }
    Connections {
        target: root.list
        function onDraggingChanged() {
            if (root.list.dragging) {
                moving.stop()
                root.armed = !root.control.refreshing
            } else if (root.armed && root.enabled && root.pulled >= Metrics.pullToRefresh) {
                root.control.pull()
            } else {
                root.list.topMargin = root.margin
            }
        }
    }
    Shortcut {
        sequence: "F5"
        autoRepeat: false
        enabled: root.enabled && root.list.visible
        onActivated: root.control.pull()
    }
}
