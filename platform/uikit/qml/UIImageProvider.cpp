// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/UIImageProvider.h"

#include "platform/uikit/UIImage.h"

#include <QPainter>
#include <QQmlEngine>
#include <QSvgRenderer>
#include <QUrl>

void UIImageProvider::install(QQmlEngine &engine)
{
    engine.addImageProvider(QStringLiteral("uiimage"), new UIImageProvider);
}

UIImageProvider::UIImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) { }

QImage UIImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QStringList parts = id.split(u'/');
    const QString name = QUrl::fromPercentEncoding(parts.first().toUtf8());
    QSvgRenderer svg(UIImage::pathOfImageNamed(name));
    if (!svg.isValid())
        return {};
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    *size = svg.defaultSize();
    const QSize pixels = requestedSize.isEmpty() ? *size : requestedSize;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter);
    if (parts.size() > 1) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), QColor(QUrl::fromPercentEncoding(parts[1].toUtf8())));
    }
    return image;
}
