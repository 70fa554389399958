// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A button of a navigation bar: a text that becomes smaller where there is no room for it, or a
/// plus.
PressArea {
    id: root

    required property UINavigationBarView bar
    required property bool trailing

    readonly property UIBarButtonItem item: trailing ? bar.rightItem : bar.leftItem
    readonly property real content: item?.drawsPlus ? Metrics.barGlyph : Math.ceil(natural.advanceWidth)

    implicitWidth: item ? Math.max(Metrics.row, Math.min(content + 2 * Metrics.margin, bar.buttonRoom)) : 0
    opacity: highlighted ? Metrics.highlightedOpacity : 1
    onTriggered: item.trigger()

    Accessible.role: Accessible.Button
    Accessible.name: item?.title ?? ""
    Accessible.focusable: true
    Accessible.pressed: highlighted
    Accessible.ignored: !visible || !enabled
    Accessible.onPressAction: activate()

    TextMetrics {
        id: natural
        text: label.text
        font: Theme.bodyFont
    }
    Text {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Metrics.margin
        anchors.rightMargin: Metrics.margin
        visible: !root.item?.drawsPlus
        text: root.item?.title ?? ""
        textFormat: Text.PlainText
        font: Theme.bodyFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: font.pixelSize / Traits.textScale
        color: Theme.accentColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Repeater {
        model: root.item?.drawsPlus ? [0, 90] : []

        Rectangle {
            required property int modelData

            anchors.centerIn: parent
            width: Metrics.barGlyph
            height: 2
            radius: 1
            rotation: modelData
            color: Theme.accentColor
        }
    }
    FocusRing {
        anchors.margins: Metrics.focusRingMargin
        anchors.leftMargin: Metrics.margin / 2
        anchors.rightMargin: Metrics.margin / 2
        shown: root.focusVisible
    }
}
