// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import UIKit

/// An alert's title and message, and its fields one below the other.
Column {
    id: root

    required property UIAlertController controller

    padding: Metrics.margin
    topPadding: Metrics.alertPadding
    bottomPadding: Metrics.alertPadding
    spacing: Metrics.lineSpacing

    AlertLabelView {
        width: root.width - 2 * root.padding
        text: root.controller.title
        font: Theme.headlineFont
    }
    AlertLabelView {
        width: root.width - 2 * root.padding
        text: root.controller.message
        font: Theme.footnoteFont
    }
    Column {
        topPadding: Metrics.alertFieldSpace
        visible: fields.count > 0
        spacing: Metrics.alertFieldSpacing

        Repeater {
            id: fields
            model: root.controller.textFields

            UITextFieldView {
                required property UITextField modelData

                width: root.width - 2 * root.padding
                height: implicitHeight
                control: modelData
            }
        }
    }
}
