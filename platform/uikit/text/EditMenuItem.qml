// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One line of a menu, darker while a finger or the keyboard is on it.
PressArea {
    id: root

    required property string title
    required property bool first
    required property bool current

    implicitWidth: label.implicitWidth + 2 * Metrics.margin
    implicitHeight: Math.max(Metrics.row, Math.ceil(label.implicitHeight) + Metrics.buttonPadding)
    activeFocusOnTab: false

    Accessible.role: Accessible.MenuItem
    Accessible.name: title
    Accessible.focusable: true
    Accessible.onPressAction: triggered()

    Rectangle {
        anchors.fill: parent
        anchors.margins: Metrics.focusRingMargin
        visible: root.highlighted || root.current
        radius: Metrics.alertRadius - Metrics.focusRingMargin
        color: Theme.pressedAlertColor
    }
    Text {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Metrics.margin
        anchors.rightMargin: Metrics.margin
        text: root.title
        textFormat: Text.PlainText
        font: Theme.bodyFont
        color: Theme.labelColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Separator {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Metrics.margin
        visible: !root.first
    }
}
