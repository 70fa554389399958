// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

class QQuickItem;

namespace HitTest {

/// The topmost item that takes presses at `scene`, a point of the window, and has it within its
/// own rectangle; null for none. Looks at `root` and at everything below it.
[[nodiscard]] QQuickItem *itemAt(QQuickItem *root, const QPointF &scene);

} // namespace HitTest
