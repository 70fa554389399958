// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A grey spinner of eight spokes, each of which is the darkest in turn.
Item {
    id: root

    required property UIActivityIndicatorView control

    implicitWidth: 20
    implicitHeight: 20
    visible: !control.hidden

    Accessible.role: Accessible.ProgressBar
    Accessible.name: control.accessibilityLabel || qsTr("Loading")
    Accessible.ignored: !control.animating || !enabled

    Timer {
        interval: Traits.reduceMotion ? 400 : 100
        repeat: true
        running: root.control.animating && root.visible
        onTriggered: spokes.rotation += 45
    }
    Item {
        id: spokes
        anchors.centerIn: parent
        width: 20
        height: 20

        Repeater {
            model: 8

            Rectangle {
                id: spoke

                required property int index

                x: 8.75
                width: 2.5
                height: 6
                radius: 1.25
                antialiasing: true
                color: Traits.secondaryLabelColor
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
