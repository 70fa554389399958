// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The drawing of a controller: loaded when it is first wanted, and kept from then on.
Loader {
    required property UIViewController controller
    required property bool wanted

    function load() {
        if (!wanted || !controller || status !== Loader.Null)
            return
        controller.loadViewIfNeeded() // the drawing binds to a finished view
        setSource(controller.viewUrl, {controller: controller})
    }

    focus: true
    onWantedChanged: load()
    Component.onCompleted: load()
}
