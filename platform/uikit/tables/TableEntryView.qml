// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One entry of a table: a row, or the text or space above or below a section.
Loader {
    id: root

    required property UITableView table
    required property int index
    required property UITableViewCell cell
    required property string text
    required property real fixedHeight
    required property int position
    required property int rows

    width: ListView.view?.width ?? 0
    height: fixedHeight >= 0 ? fixedHeight : implicitHeight

    Component.onCompleted: setSource(cell ? "TableRowView.qml" : "TableSpaceView.qml", {"entry": root})
    Component.onDestruction: if (cell)
        table?.cellHidden(cell)

    ReadingOrder { index: root.index }
}
