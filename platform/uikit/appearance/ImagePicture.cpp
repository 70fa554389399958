// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/ImagePicture.h"

#include "platform/uikit/appearance/UIImage.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSvgRenderer>

ImagePicture::ImagePicture(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

ImagePicture::~ImagePicture() = default;

void ImagePicture::setName(const QString &name)
{
    if (m_name == name) {
        return;
    }
    m_name = name;
    m_svg.reset();
    if (!UIImage::imageNamed(name).name().isEmpty()) {
        m_svg = std::make_unique<QSvgRenderer>(UIImage::pathOfImageNamed(name));
        m_svg->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    Q_EMIT changed();
    update();
}

void ImagePicture::setTint(const QColor &tint)
{
    if (m_tint == tint) {
        return;
    }
    m_tint = tint;
    Q_EMIT changed();
    update();
}

QImage ImagePicture::render(double pixelRatio) const
{
    QImage image((size() * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull() || !m_svg || !m_svg->isValid()) {
        return {};
    }
    image.fill(Qt::transparent);
    QPainter painter(&image);
    m_svg->render(&painter);
    if (m_tint.alpha() > 0) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), m_tint);
    }
    return image;
}

QSGNode *ImagePicture::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const double pixelRatio = window()->effectiveDevicePixelRatio();
    const QImage image = render(pixelRatio);
    if (image.isNull()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
    }
    node->setTexture(window()->createTextureFromImage(image));
    node->setRect(QRectF(QPointF(), QSizeF(image.size()) / pixelRatio));
    return node;
}

void ImagePicture::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        update();
    }
}

void ImagePicture::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged) {
        update();
    }
}
