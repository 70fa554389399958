// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/input/KeyFocus.h"
#include "platform/uikit/input/ScreenReaderFocus.h"

#include <QPointer>
#include <QQuickItem>

/// Has the keyboard for what draws several things of which one is current, tells screen readers
/// which, and knows whether to show that.
class FocusGroup : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *current READ current WRITE setCurrent NOTIFY currentChanged FINAL)
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit FocusGroup(QQuickItem *parent = nullptr);

    /// What screen readers are told to have the keyboard; null for nothing.
    [[nodiscard]] QQuickItem *current() const { return m_current; }
    void setCurrent(QQuickItem *current);
    [[nodiscard]] bool isFocusVisible() const { return m_keyFocus.isVisible(); }

Q_SIGNALS:
    void currentChanged();
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
