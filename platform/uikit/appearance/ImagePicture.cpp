// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/ImagePicture.h"

#include "platform/uikit/appearance/UIImage.h"

#include <QPainter>
#include <QSvgRenderer>

ImagePicture::ImagePicture(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ImagePicture::changed, this, [this] { update(); });
}

void ImagePicture::paint(QPainter *painter)
{
    if (UIImage::imageNamed(m_name) == UIImage()) {
        return;
    }
    QSvgRenderer svg(UIImage::pathOfImageNamed(m_name));
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    svg.render(painter, boundingRect());
    if (m_tint.alpha() > 0) {
        painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter->fillRect(boundingRect(), m_tint);
    }
}
