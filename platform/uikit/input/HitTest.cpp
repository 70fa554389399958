// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/HitTest.h"

#include <QQuickItem>

namespace {

// Children with a negative z lie below their parent, but none that takes presses does so here.
bool isAbove(const QQuickItem *left, const QQuickItem *right)
{
    return left->z() > right->z();
}

} // namespace

QQuickItem *HitTest::itemAt(QQuickItem *root, const QPointF &scene)
{
    const QPointF point = root->mapFromScene(scene);
    const bool within =
        root->containmentMask() ? root->contains(point) : root->boundingRect().contains(point);
    if (!root->isVisible() || !root->isEnabled() || (root->clip() && !within)) {
        return nullptr;
    }
    const QList<QQuickItem *> inOrder = root->childItems();
    QList<QQuickItem *> children(inOrder.crbegin(), inOrder.crend());
    std::stable_sort(children.begin(), children.end(), isAbove);
    for (QQuickItem *child : children) {
        if (QQuickItem *found = itemAt(child, scene)) {
            return found;
        }
    }
    const bool takesPresses = root->acceptedMouseButtons() != Qt::NoButton;
    return within && takesPresses ? root : nullptr;
}
