// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/SublayersPicture.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

// A gradient holds one colour a place: the second of an edge stands just behind the first.
constexpr double edge = 1e-4;

QLinearGradient drawn(const CAGradientLayer &layer)
{
    QLinearGradient gradient(layer.frame.topLeft(), layer.frame.bottomLeft());
    double last = -1;
    for (size_t i = 0; i < std::min(layer.colors.size(), layer.locations.size()); ++i) {
        last = layer.locations[i] > last ? layer.locations[i] : last + edge;
        gradient.setColorAt(std::clamp(last, 0.0, 1.0), layer.colors[i].toQColor(false));
    }
    return gradient;
}

} // namespace

void SublayersPicture::setView(UIView *view)
{
    if (m_view == view) {
        return;
    }
    if (m_view) {
        m_view->disconnect(this);
    }
    m_view = view;
    if (m_view) {
        connect(m_view, &UIView::changed, this, [this] { update(); });
    }
    Q_EMIT viewChanged();
    update();
}

void SublayersPicture::paint(QPainter *painter)
{
    const CALayer layer = m_view ? m_view->layer() : CALayer();
    painter->setRenderHint(QPainter::Antialiasing);
    QPainterPath mask;
    mask.addRoundedRect(boundingRect(), layer.cornerRadius, layer.cornerRadius);
    for (const CAGradientLayer &sublayer : layer.sublayers) {
        QPainterPath shape;
        shape.addRect(sublayer.frame);
        painter->fillPath(layer.masksToBounds ? shape.intersected(mask) : shape, drawn(sublayer));
    }
}
