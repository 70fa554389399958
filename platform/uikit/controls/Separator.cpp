// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/Separator.h"

#include "platform/uikit/appearance/Traits.h"
#include "platform/uikit/appearance/UIColor.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

Separator::Separator(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(&Traits::current(), &Traits::changed, this, &Separator::followTraits);
    followTraits();
}

void Separator::setVertical(bool vertical)
{
    if (m_vertical == vertical) {
        return;
    }
    m_vertical = vertical;
    followTraits();
    Q_EMIT verticalChanged();
}

void Separator::followTraits()
{
    const double pixel = 1 / Traits::current().displayScale();
    if (m_vertical) {
        setWidth(pixel);
    } else {
        setHeight(pixel);
    }
    update();
}

QSGNode *Separator::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *line = static_cast<QSGRectangleNode *>(old);
    if (!line) {
        line = window()->createRectangleNode();
    }
    line->setRect(boundingRect());
    line->setColor(UIColor::separatorColor().toQColor(Traits::current().isDark()));
    return line;
}
