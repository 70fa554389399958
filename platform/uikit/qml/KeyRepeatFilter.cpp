// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/KeyRepeatFilter.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QWindow>

namespace {

bool takesLines(QObject *focused)
{
    if (!focused)
        return false;
    QInputMethodQueryEvent query(Qt::ImHints);
    QCoreApplication::sendEvent(focused, &query);
    return Qt::InputMethodHints(query.value(Qt::ImHints).toInt()).testFlag(Qt::ImhMultiLine);
}

} // namespace

KeyRepeatFilter::KeyRepeatFilter(QWindow &window)
{
    window.installEventFilter(this);
}

bool KeyRepeatFilter::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto *press = static_cast<QKeyEvent *>(event);
    if (!press->isAutoRepeat()) {
        m_key = event->type() == QEvent::KeyPress ? press->key() : 0;
        m_beganInLines = takesLines(QGuiApplication::focusObject());
        return false;
    }
    if (press->key() != m_key)
        return true;
    switch (press->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Back:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return !m_beganInLines || !takesLines(QGuiApplication::focusObject());
    default:
        return false;
    }
}
