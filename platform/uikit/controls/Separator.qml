// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A hairline across its parent, between rows; down its parent, between columns.
Item {
    id: root

    property bool vertical: false

    anchors.left: parent.left
    anchors.right: vertical ? undefined : parent.right
    width: Metrics.hairline
    height: vertical ? parent.height : Metrics.hairline

    // The software renderer draws no rectangle thinner than a point, but scales one down exactly.
    Rectangle {
        width: root.vertical ? 1 : root.width
        height: root.vertical ? root.height : 1
        color: Theme.separatorColor
        transform: Scale {
            xScale: root.vertical ? Metrics.hairline : 1
            yScale: root.vertical ? 1 : Metrics.hairline
        }
    }
}
