// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// The way back: a chevron and, where there is room, the previous page's title.
PressArea {
    id: root

    required property UINavigationBarView bar

    readonly property string title: bar.controller.backTitle
    readonly property real inset: 28

    implicitWidth: Math.max(Metrics.row, label.visible ? inset + label.width : 0)
    onTriggered: bar.controller.goBack()
    opacity: highlighted ? Metrics.highlightedOpacity : 1

    Accessible.role: Accessible.Button
    Accessible.name: title ? qsTr("Back to %1").arg(title) : qsTr("Back")
    Accessible.focusable: true
    Accessible.pressed: highlighted
    Accessible.ignored: !visible || !enabled
    Accessible.onPressAction: activate()

    Repeater {
        model: [45, -45]

        Rectangle {
            required property int modelData

            anchors.left: root.left
            anchors.leftMargin: 8
            y: root.height / 2 - height / 2 + (modelData > 0 ? 3.9 : -3.9)
            width: 13
            height: 2.5
            radius: height / 2
            antialiasing: true
            rotation: Metrics.direction * modelData
            color: Theme.accentColor
        }
    }
    Text {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: root.inset
        height: parent.height
        visible: root.inset + implicitWidth <= root.bar.side
        text: root.title
        textFormat: Text.PlainText
        font: Theme.bodyFont
        color: Theme.accentColor
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    FocusRing { shown: root.focusVisible }
}
