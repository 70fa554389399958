// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import XLForm

/// A screen that is a form: Tab goes through the editors in its rows.
UITableViewView {
    required property XLFormViewController controller

    control: controller.tableView
    Accessible.name: controller.navigationItem.title
    rowsHaveKeyboard: false
}
