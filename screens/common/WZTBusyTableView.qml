// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import Screens

/// A table with a spinner over its middle.
UITableViewView {
    id: root

    required property WZTBusyTableViewController controller

    control: controller.tableView
    Accessible.name: controller.navigationItem.title

    UIActivityIndicatorViewView {
        objectName: "indicator"
        anchors.centerIn: parent
        control: root.controller.activityIndicator
    }
}
