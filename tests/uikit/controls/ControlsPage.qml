// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// One control of each kind.
UIViewView {
    id: root

    required property UITextField name
    required property UITextField secret
    required property UIButton button
    required property UIButton link
    required property UIImageView picture
    required property UIActivityIndicatorView spinner
    property int returns: 0

    objectName: "page"

    FocusScope {
        anchors.fill: parent
        focus: true
        Keys.onReturnPressed: ++root.returns

        UITextFieldView { objectName: "name"; x: 20; y: 60; width: 200; height: 36; control: root.name }
        UITextFieldView { objectName: "secret"; x: 20; y: 116; width: 200; height: 36; control: root.secret }
        UIButtonView { objectName: "button"; x: 20; y: 172; width: 100; height: 30; control: root.button }
        UIButtonView { objectName: "link"; x: 20; y: 204; width: 100; height: 30; control: root.link }
        UIImageViewView { objectName: "picture"; x: 20; y: 254; width: 80; height: 40; control: root.picture }
        UIActivityIndicatorViewView { objectName: "spinner"; x: 20; y: 314; control: root.spinner }
        ImagePicture { x: 120; y: 254; width: 80; height: 40; name: "testMark"; tint: "#8000ff00" }
    }
}
