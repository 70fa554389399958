// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/BareWindow.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>

namespace {

constexpr auto drawing = R"(
    import QtQuick

    Rectangle {
        width: 390
        height: 844

        Rectangle {
            width: parent.width
            height: parent.height
            color: "steelblue"
            NumberAnimation on x {
                from: 0
                to: 390
                duration: 400
                loops: Animation.Infinite
            }
        }
    }
)";

} // namespace

void fillBareWindow(QQuickView &view)
{
    auto *component = new QQmlComponent(view.engine(), &view);
    component->setData(drawing, QUrl());
    view.setContent(QUrl(), component, component->create());
}
