// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/KeyRepeatFilter.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QWindow>

namespace {

bool isMultiLine(QObject *focused)
{
    if (!focused) {
        return false;
    }
    QInputMethodQueryEvent query(Qt::ImHints);
    QCoreApplication::sendEvent(focused, &query);
    return Qt::InputMethodHints(query.value(Qt::ImHints).toInt()).testFlag(Qt::ImhMultiLine);
}

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

} // namespace

KeyRepeatFilter::KeyRepeatFilter(QWindow &window)
{
    window.installEventFilter(this);
}

bool KeyRepeatFilter::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (isModifier(key.key())) {
        return false; // the other key that is held goes on
    }
    if (key.isAutoRepeat()) {
        return ignoresRepeat(key);
    }
    followPress(key);
    return false;
}

void KeyRepeatFilter::followPress(const QKeyEvent &event)
{
    if (event.type() == QEvent::KeyPress) {
        m_key = event.key();
        m_beganInLines = isMultiLine(QGuiApplication::focusObject());
    } else if (event.key() == m_key) {
        m_key = 0;
    }
}

bool KeyRepeatFilter::ignoresRepeat(const QKeyEvent &event) const
{
    if (event.key() != m_key) {
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Back:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return !m_beganInLines || !isMultiLine(QGuiApplication::focusObject());
    default:
        return false;
    }
}
