// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/input/KeyFocus.h"
#include "platform/uikit/input/ScreenReaderFocus.h"

#include <QPointer>
#include <QQuickItem>

/// An item that has the keyboard for several things, one of which is current: it tells screen
/// readers which, and knows whether to show it.
class FocusGroup : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit FocusGroup(QQuickItem *parent = nullptr);

    /// The item that screen readers are told to have the keyboard; null for none.
    [[nodiscard]] QQuickItem *current() const { return m_current; }
    void setCurrent(QQuickItem *current);
    [[nodiscard]] bool isFocusVisible() const { return m_keyFocus.isVisible(); }

Q_SIGNALS:
    void focusVisibleChanged();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void announceCurrent();

    QPointer<QQuickItem> m_current;
    ScreenReaderFocus m_spoken;
    KeyFocus m_keyFocus{*this};
};
