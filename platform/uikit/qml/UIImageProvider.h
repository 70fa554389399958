// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

class QQmlEngine;

/// Gives QML the pictures of UIImage: "image://uiimage/wztLogo" as it is drawn, and
/// "image://uiimage/home/%23007aff" in one colour that keeps the picture's alpha. The name and the
/// colour ("#rrggbb" or "#aarrggbb") are percent-encoded. A picture fills the size that is asked
/// for, in device pixels, and keeps its proportions; asked for none, it has its own size.
class UIImageProvider : public QQuickImageProvider {
public:
    /// Gives `engine` a provider; once for an engine, before it loads a drawing.
    static void install(QQmlEngine &engine);

    UIImageProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
