// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One tab: its picture, and its title below if it has one.
PressArea {
    id: root

    required property UITabBarItem item
    required property bool selected
    required property color tint

    readonly property color shown: selected ? tint : Theme.unselectedTabColor

    Accessible.role: Accessible.PageTab
    Accessible.name: item.accessibilityLabel || item.title
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.pressed: highlighted
    Accessible.ignored: !enabled
    Accessible.onPressAction: triggered()

    ImagePicture {
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.item.title ? 6 : (root.height - height) / 2
        width: 25
        height: 25
        name: root.item.image.name
        tint: root.shown
    }
    Text {
        id: title
        y: 33
        width: parent.width
        height: parent.height - y - 2
        text: root.item.title
        textFormat: Text.PlainText
        // Qt loads the font of an empty text as well, and one for each size that it tries.
        font: text ? Theme.tabTitleFont : Theme.bodyFont
        fontSizeMode: text ? Text.VerticalFit : Text.FixedSize
        minimumPixelSize: 9
        color: root.shown
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
    FocusRing {
        anchors.margins: 3
        anchors.leftMargin: 6
        anchors.rightMargin: 6
        shown: root.focusVisible
    }
}
