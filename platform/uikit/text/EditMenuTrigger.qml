// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Put into a TextInput or TextEdit: a long press, the right mouse button and the menu key open
/// its menu. A tap gives it the keyboard, a finger that scrolls does not; a long press and a double
/// tap select.
Item {
    id: root

    property alias secret: actions.secret
    readonly property bool touched: finger.active

    readonly property TextInput line: parent as TextInput
    readonly property TextEdit lines: parent as TextEdit
    readonly property rect mark: line?.cursorRectangle ?? lines?.cursorRectangle ?? Qt.rect(0, 0, 0, 0)

    function point(at: point, select: bool) {
        actions.point(line?.positionAt(at.x, at.y) ?? lines?.positionAt(at.x, at.y) ?? 0, select)
    }
    function open(place: rect) {
        const titles = actions.offered()
        if (titles.length > 0)
            menu.setSource("EditMenu.qml", {
                "trigger": root,
                "parent": Window.contentItem,
                "titles": titles,
                "place": mapToItem(null, place)
            })
    }
    function close() {
        menu.source = ""
    }
    function choose(title: string) {
        close()
        actions.perform(title)
    }

    anchors.fill: parent
    onEnabledChanged: close()

    EditActions {
        id: actions
        editor: root.parent
    }
    Loader { id: menu }
    Connections {
        target: root.parent
        function onTextChanged() {
            root.close() // other actions are possible now
        }
    }
    PointHandler {
        id: finger
        acceptedDevices: PointerDevice.TouchScreen
    }
    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        // A touch may outlive its page: the controller that covers the page has the keyboard.
        onTapped: {
            if (!root.enabled)
                return
            root.parent.forceActiveFocus()
            InputMethod.show() // or it would not come again when it was put away
        }
        onDoubleTapped: eventPoint => {
            if (root.enabled)
                root.point(eventPoint.position, true)
        }
        onLongPressed: {
            if (!root.enabled)
                return
            root.point(point.position, true)
            root.open(root.mark)
        }
    }
    TapHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            root.point(eventPoint.position, false)
            root.open(Qt.rect(eventPoint.position.x, eventPoint.position.y, 0, 0))
        }
    }
    Shortcut {
        sequences: ["Menu", "Shift+F10"]
        autoRepeat: false
        enabled: root.enabled && root.parent.activeFocus
        onActivated: root.open(root.mark)
    }
}
