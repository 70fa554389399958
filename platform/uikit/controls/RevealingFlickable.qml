// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick

/// Scrolls, where it is not high enough, to the item in it that has the keyboard.
Flickable {
    readonly property Item focused: Window.activeFocusItem

    function reveal() {
        let inside = focused
        while (inside && inside !== contentItem)
            inside = inside.parent
        if (!inside)
            return
        const place = contentItem.mapFromItem(focused, 0, 0, focused.width, focused.height)
        contentY = Math.max(0, Math.min(place.y, Math.max(contentY, place.y + place.height - height)))
    }

    clip: interactive
    interactive: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    onFocusedChanged: reveal()
    onHeightChanged: reveal()
}
