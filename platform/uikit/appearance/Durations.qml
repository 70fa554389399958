// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick
import UIKit

/// How long everything drawn moves, in milliseconds.
QtObject {
    readonly property int page: 350
    readonly property int modal: 420
    /// An alert, and every transition while motion is reduced.
    readonly property int fade: 220
    readonly property int title: 300
    /// A button that a finger has left.
    readonly property int release: 250
    readonly property int deselection: 350
    readonly property int refresh: Traits.reduceMotion ? 0 : 250
    /// From one spoke of a spinner to the next.
    readonly property int spoke: Traits.reduceMotion ? 400 : 100
    /// A finger that rests for so long has no speed.
    readonly property int fingerRest: 100

    /// The rest of a page's transition that a finger began, at the pace of a whole one.
    function restOfPage(part: real): int {
        return Traits.reduceMotion ? 1 : Math.max(120, page * part)
    }
}
