// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/qml/KeyFocus.h"

#include <QQuickItem>

/// Has the keyboard for what draws several things of which one is current, and knows whether to
/// show that.
class UIFocusItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged)

public:
    explicit UIFocusItem(QQuickItem *parent = nullptr);

    [[nodiscard]] bool isFocusVisible() const { return m_keyFocus.isVisible(); }

Q_SIGNALS:
    void focusVisibleChanged();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    KeyFocus m_keyFocus{*this};
};
