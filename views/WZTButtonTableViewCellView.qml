// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import Views

Item {
    id: root

    required property WZTButtonTableViewCell control

    implicitHeight: button.implicitHeight

    WZTGlossyButtonView {
        id: button
        control: root.control.button
        anchors { fill: parent; leftMargin: 20; rightMargin: 20 }
    }
}
