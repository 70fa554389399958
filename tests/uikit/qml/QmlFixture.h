// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UIApplication.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/WindowDriver.h"

#include <QQuickView>

/// An application and a window to draw in, 390x844, shown and active. Anything that QML complains
/// about fails the test.
class QmlFixture {
public:
    QmlFixture();

    RecordingHost host;
    UIApplication application{host};
    QQuickView window;

    /// Shows the drawing `file` ("UILabelView.qml") of the module UIKit with these properties and
    /// returns its root item; null, with the test failed, when it cannot be loaded.
    QQuickItem *show(const QString &file, const QVariantMap &properties);
    /// The same for a piece of QML.
    QQuickItem *showSource(const QByteArray &source, const QVariantMap &properties);
    /// What is drawn now.
    QImage grab() { return window.grabWindow(); }
    /// A finger taps at `point`.
    void tap(const QPoint &point) { WindowDriver::tap(window, point); }

private:
    QQuickItem *show(class QQmlComponent &component, const QVariantMap &properties);
};
