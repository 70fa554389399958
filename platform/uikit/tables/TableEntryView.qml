// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One entry of a table: a row, or the text or space above or below a section. A space draws nothing.
Loader {
    id: root

    required property UITableView table
    required property int index
    required property UITableViewCell cell
    required property string text
    required property real fixedHeight
    required property int position
    required property int rows

    function load() {
        if (status === Loader.Null && (cell || text))
            setSource(cell ? "TableRowView.qml" : "TableFooterView.qml", {"entry": root})
    }

    width: ListView.view?.width ?? 0
    height: fixedHeight >= 0 ? fixedHeight : cell || text ? implicitHeight
        : index === 0 ? 2 * Metrics.sectionSpace : Metrics.sectionSpace

    onTextChanged: load()
    Component.onCompleted: load()
    Component.onDestruction: if (cell)
        table?.cellHidden(cell)

    ReadingOrder { index: root.index }
}
