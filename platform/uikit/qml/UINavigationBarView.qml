// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// The bar of a navigation controller: back button, title, hairline.
Rectangle {
    id: root

    required property UINavigationController controller

    readonly property UIViewController page: controller.topViewController
    /// What the centred title leaves at either side.
    readonly property real side: (width - title.width) / 2 - Metrics.margin

    implicitHeight: Metrics.navigationBar
    color: Traits.barColor

    UIBackButtonView {
        anchors.left: parent.left
        height: parent.height
        visible: root.controller.canGoBack
        title: root.controller.backTitle
        room: root.side
        onTriggered: root.controller.goBack()
    }
    Text {
        id: title
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, root.width - 2 * Metrics.row)
        height: parent.height
        text: root.page ? root.page.navigationItem.title : ""
        textFormat: Text.PlainText
        font: Traits.headlineFont
        color: Traits.labelColor
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
            duration: 300
        }
    }
    Connections {
        target: root.controller
        function onTopViewControllerChanged() {
            if (!Traits.reduceMotion)
                appearing.restart()
        }
    }
    Separator { anchors.bottom: parent.bottom }
}
