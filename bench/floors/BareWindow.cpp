// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/floors/BareWindow.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>

namespace {

constexpr auto movement = R"(
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

constexpr auto line = R"(
    import QtQuick

    Rectangle {
        required property string text

        width: 390
        height: 844

        Text {
            anchors.centerIn: parent
            text: parent.text
        }
    }
)";

void fill(QQuickView &view, const char *drawing, const QVariantMap &properties)
{
    auto *component = new QQmlComponent(view.engine(), &view);
    component->setData(drawing, QUrl());
    view.setContent(QUrl(), component, component->createWithInitialProperties(properties));
}

} // namespace

void fillBareWindow(QQuickView &view)
{
    fill(view, movement, {});
}

void fillTextWindow(QQuickView &view, const QString &text)
{
    fill(view, line, {{QStringLiteral("text"), text}});
}
