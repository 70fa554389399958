// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// What is seen behind a table that is pulled down, and above it while it refreshes. Let go of far
/// enough down, the table refreshes; so it does by key.
Item {
    id: root

    required property UIRefreshControl control
    required property ListView list

    readonly property real pulled: Math.max(0, list.originY - list.contentY)

    height: Metrics.refreshControl

    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Loading")
    Accessible.ignored: !control.refreshing || !enabled

    Binding {
        target: root.list
        property: "topMargin"
        value: root.control.refreshing ? root.height : 0
    }
    Spinner {
        anchors.centerIn: parent
        spinning: root.control.refreshing
        spokes: spinning ? 8 : Math.min(8, 8 * root.pulled / Metrics.pullToRefresh)
    }
    NumberAnimation {
        id: rising
        target: root.list
        property: "contentY"
        to: root.list.originY - root.height
        duration: Traits.reduceMotion ? 0 : 200
        easing.type: Easing.OutQuad
    }
    Connections {
        target: root.list
        function onDraggingChanged() {
            if (!root.list.dragging && root.pulled >= Metrics.pullToRefresh)
                root.control.pull()
        }
        // The spinner comes into sight, if the top of the table is.
        function onTopMarginChanged() {
            if (root.control.refreshing && root.pulled < root.height && root.list.contentY <= root.list.originY)
                rising.restart()
        }
    }
    Shortcut {
        sequences: [StandardKey.Refresh]
        enabled: root.enabled && root.visible
        onActivated: root.control.pull()
    }
}
