// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// A screen that is a table and nothing else.
UITableViewView {
    required property UITableViewController controller

    control: controller.tableView
    Accessible.name: controller.navigationItem.title
}
