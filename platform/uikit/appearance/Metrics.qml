// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick

/// Lengths that everything drawn shares, in points.
QtObject {
    /// One device pixel.
    readonly property real hairline: 1 / Qt.application.screens[0].devicePixelRatio // qmllint disable

    /// Where lines are read to: 1 for the right, -1 for the left.
    readonly property int direction: Qt.application.layoutDirection === Qt.RightToLeft ? -1 : 1 // qmllint disable

    readonly property real margin: 16
    readonly property real row: 44
    /// Above and below what a row holds.
    readonly property real rowMargin: 11
    readonly property real rowImage: 29
    /// Above and below a section; twice that above the first one.
    readonly property real sectionSpace: 18
    readonly property real navigationBar: 44
    readonly property real barGlyph: 22
    /// The part of a bar that a button beside the title has at most.
    readonly property real barButtonShare: 0.28
    /// How near the edge a finger begins that moves a page away.
    readonly property real swipeEdge: 20
    readonly property real tabBar: 49
    readonly property real widestTab: 160

    /// Where the on-screen keyboard is in the window; empty for nowhere.
    property rect keyboard: InputMethod.visible ? InputMethod.keyboardRectangle : Qt.rect(0, 0, 0, 0)

    readonly property real refreshControl: 60
    /// How far a table is pulled down to be refreshed.
    readonly property real pullToRefresh: 80

    readonly property real alertWidth: 270
    readonly property real alertRadius: 14
    readonly property real menuWidth: 160
    readonly property real fieldRadius: 5
    readonly property real fieldInset: 7

    /// How much of a control is left to see while a finger is on it.
    readonly property real highlightedOpacity: 0.3
    readonly property real focusRing: 2

    /// How much of a window of that height the on-screen keyboard covers.
    function covered(height: real): real {
        return Math.max(0, Math.min(keyboard.height, height - keyboard.y))
    }
}
