// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The insertion mark of a text editor: blinks at the desktop's pace, and stands still at each move
/// and where nobody sees it.
Rectangle {
    id: root

    function stand() {
        blink.lit = true
        if (blink.running)
            blink.restart()
    }

    width: 2
    radius: 1
    visible: parent.activeFocus
    color: Theme.accentColor
    opacity: blink.lit ? 1 : 0

    Timer {
        property bool lit: true

        id: blink
        interval: Qt.styleHints.cursorFlashTime / 2 // qmllint disable
        repeat: true
        running: root.visible && interval > 0 && root.Window.visibility !== Window.Hidden
            && root.Window.visibility !== Window.Minimized
        onTriggered: lit = !lit
        onRunningChanged: lit = true
    }
    onXChanged: stand()
    onYChanged: stand()
}
