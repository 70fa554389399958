// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick

/// Lengths that everything drawn shares, in points.
QtObject {
    /// One device pixel.
    readonly property real hairline: 1 / Traits.displayScale

    /// Where lines are read to: 1 for the right, -1 for the left.
    readonly property int direction: Traits.isRightToLeft ? -1 : 1

    readonly property real margin: 16
    readonly property real row: 44
    /// Above and below the contents of a row.
    readonly property real rowMargin: 11
    /// Between two texts, one below the other.
    readonly property real lineSpacing: 3
    readonly property real rowImage: 29
    /// Above and below a section; twice that above the first one.
    readonly property real sectionSpace: 18
    /// Above and below the text that follows a section.
    readonly property real footerSpaceAbove: 7
    readonly property real footerSpaceBelow: 11
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
    /// Above and below an alert's texts, and above its fields.
    readonly property real alertPadding: 19
    readonly property real alertFieldSpace: 13
    readonly property real alertFieldSpacing: 8
    /// Above and below the title of an alert's button or a menu's line, together.
    readonly property real buttonPadding: 16
    readonly property real menuWidth: 160
    readonly property real fieldRadius: 5
    readonly property real fieldInset: 7
    /// Above and below a field's text, together.
    readonly property real fieldPadding: 12

    /// The opacity of a control while a finger is on it.
    readonly property real highlightedOpacity: 0.3
    readonly property real focusRing: 2
    /// From the edge of a control to the ring around it.
    readonly property real focusRingMargin: 4

    /// How much of a window of that height the on-screen keyboard covers.
    function covered(height: real): real {
        return Math.max(0, Math.min(keyboard.height, height - keyboard.y))
    }
}
