// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

class QAccessibleInterface;
class QQuickWindow;

/// A person at a window: finds things by what draws them, by object name, or by the name that a
/// screen reader says, and touches and types. Items made by Repeaters and Loaders are found too.
namespace WindowDriver {

/// The items of that type ("UIButtonView"), in the order in which they are drawn.
[[nodiscard]] QList<QQuickItem *> items(const QQuickWindow &window, const QString &type);
/// The item of that objectName; null for none.
[[nodiscard]] QQuickItem *named(const QQuickWindow &window, const QString &name);
/// The item that draws that view or control; null for none.
[[nodiscard]] QQuickItem *drawing(const QQuickWindow &window, const QObject *control);
/// What a screen reader finds under that name, the topmost first; null for none.
[[nodiscard]] QAccessibleInterface *accessible(QQuickWindow &window, const QString &name);

/// `item`'s rectangle in the window, and its middle.
[[nodiscard]] QRectF rect(const QQuickItem *item);
[[nodiscard]] QPoint centre(const QQuickItem *item);

/// A finger taps.
void tap(QQuickWindow &window, const QPoint &point);
void type(QQuickWindow &window, const QString &text);

} // namespace WindowDriver
