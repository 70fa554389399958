// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The bar of a navigation controller: back button or left item, title, right item, hairline. The
/// title keeps the middle, and becomes smaller where the buttons leave too little of it.
Rectangle {
    id: root

    required property UINavigationController controller

    readonly property UIViewController page: controller.topViewController
    readonly property real buttonRoom: width * Metrics.barButtonShare
    /// The room beside the centred title.
    readonly property real side: (width - title.width) / 2 - Metrics.margin

    readonly property UIBarButtonItem leftItem: page?.navigationItem.leftBarButtonItem ?? null
    readonly property UIBarButtonItem rightItem: page?.navigationItem.rightBarButtonItem ?? null

    /// A place for a button, which is loaded once there is one.
    component ButtonPlace: Loader {
        required property bool needed

        height: parent.height
        visible: needed
        function load(file: string, properties: var) {
            if (needed && status === Loader.Null)
                setSource(file, properties)
        }
    }

    implicitHeight: Metrics.navigationBar
    color: Theme.barColor

    ButtonPlace {
        anchors.left: parent.left
        needed: root.controller.canGoBack && !left.needed
        onNeededChanged: load("BackButton.qml", {"bar": root})
    }
    ButtonPlace {
        id: left
        anchors.left: parent.left
        needed: root.leftItem !== null
        onNeededChanged: load("UIBarButtonItemView.qml", {"bar": root, "trailing": false})
    }
    TextMetrics {
        id: natural
        text: title.text
        font: title.font
    }
    Text {
        id: title
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(Math.ceil(natural.advanceWidth), root.width - 2 * Math.max(Metrics.row, left.width, right.width))
        height: parent.height
        text: root.page ? root.page.navigationItem.title : ""
        textFormat: Text.PlainText
        font: Theme.headlineFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: font.pixelSize / Traits.textScale
        color: Theme.labelColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter

        Accessible.role: Accessible.Heading
        Accessible.name: text
        Accessible.ignored: !text || !enabled

        NumberAnimation on opacity {
            id: appearing
            running: false
            from: 0
            to: 1
            duration: Durations.title
        }
    }
    ButtonPlace {
        id: right
        anchors.right: parent.right
        needed: root.rightItem !== null
        onNeededChanged: load("UIBarButtonItemView.qml", {"bar": root, "trailing": true})
    }
    Connections {
        target: root.controller
        function onTopViewControllerChanged() {
            if (!Traits.reduceMotion)
                appearing.restart()
        }
    }
    Separator {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
