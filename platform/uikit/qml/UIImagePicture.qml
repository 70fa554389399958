// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick

/// A picture of the build, crisp at any size and pixel ratio; in one colour if `tint` is one.
Image {
    id: root

    required property string name
    property color tint: "transparent"

    readonly property string path: "image://uiimage/" + encodeURIComponent(name)

    visible: name !== ""
    source: !name ? "" : tint.a === 0 ? path : path + "/" + encodeURIComponent(tint)
    sourceSize.width: width
    sourceSize.height: height
    cache: false // what is cached and unused at the end would never be freed
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
