// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit
import XLForm

/// A screen that is a form: the keyboard goes through what its rows edit.
UITableViewView {
    required property XLFormViewController controller

    control: controller.tableView
    Accessible.name: controller.navigationItem.title
    rowsHaveKeyboard: false
}
