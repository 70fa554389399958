// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One button of an alert, darker while a finger is on it; the corners that it shares with the
/// alert are as round.
PressArea {
    id: root

    required property UIAlertAction action
    // Left is where lines begin.
    required property bool roundsLeft
    required property bool roundsRight
    /// Whether another button stands before it.
    required property bool beside

    readonly property bool isCancel: action.style === UIAlertAction.Cancel

    Accessible.role: Accessible.Button
    Accessible.name: action.title
    Accessible.focusable: true
    Accessible.pressed: highlighted
    Accessible.ignored: !enabled
    Accessible.onPressAction: activate()

    Rectangle {
        anchors.fill: parent
        visible: root.highlighted
        radius: root.roundsLeft || root.roundsRight ? Metrics.alertRadius : 0
        color: Theme.pressedAlertColor

        // Squares over the corners that are not round.
        Rectangle {
            width: parent.width
            height: parent.height - parent.radius
            color: parent.color
        }
        Rectangle {
            anchors.bottom: parent.bottom
            anchors.left: root.roundsLeft ? undefined : parent.left
            anchors.right: root.roundsRight ? undefined : parent.right
            width: root.roundsLeft && root.roundsRight ? 0 : parent.width / 2
            height: parent.radius
            color: parent.color
        }
    }
    Text {
        id: title
        anchors.fill: parent
        anchors.leftMargin: Metrics.margin / 2
        anchors.rightMargin: Metrics.margin / 2
        text: root.action.title
        textFormat: Text.PlainText
        font: root.isCancel ? Theme.headlineFont : Theme.bodyFont
        color: Theme.accentColor
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Math.round(0.6 * font.pixelSize)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Separator { width: parent.width }
    Separator {
        vertical: true
        anchors.left: parent.left
        height: parent.height
        visible: root.beside
    }
    FocusRing {
        anchors.margins: Metrics.focusRingMargin
        anchors.leftMargin: Metrics.focusRingMargin
        anchors.rightMargin: Metrics.focusRingMargin
        radius: Metrics.alertRadius - Metrics.focusRingMargin
        shown: root.focusVisible
    }
}
