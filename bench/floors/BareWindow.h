// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QQuickView;
class QString;

/// The least cost of drawing: a window as large as the application's, in which one rectangle
/// of its size moves.
void fillBareWindow(QQuickView &view);

/// The least cost of a window that says something: one line of text in it.
void fillTextWindow(QQuickView &view, const QString &text);
