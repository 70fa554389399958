// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Eight grey spokes, each of which is the darkest in turn while it spins.
Item {
    id: root

    required property bool spinning
    /// How many of the spokes are drawn.
    property int spokes: 8

    implicitWidth: 20
    implicitHeight: 20

    Timer {
        interval: Durations.spoke
        repeat: true
        running: root.spinning && root.visible
        onTriggered: wheel.rotation += 45
    }
    Item {
        id: wheel
        anchors.centerIn: parent
        width: 20
        height: 20

        Repeater {
            model: root.visible ? root.spokes : 0

            Rectangle {
                id: spoke

                required property int index

                x: 8.75
                width: 2.5
                height: 6
                radius: 1.25
                antialiasing: true
                color: Theme.secondaryLabelColor
                opacity: 1 - 0.1 * spoke.index
                transform: Rotation {
                    origin.x: 1.25
                    origin.y: 10
                    angle: -45 * spoke.index
                }
            }
        }
    }
}
