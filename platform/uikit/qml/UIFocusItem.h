// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// Has the keyboard for what draws several things of which one is current, and knows whether to
/// show that: only while the keyboard is in use.
class UIFocusItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool byKey READ isByKey WRITE setByKey NOTIFY focusVisibleChanged)
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged)

public:
    /// Whether the keyboard is in use; whoever sees a touch says that it is not.
    [[nodiscard]] bool isByKey() const { return m_byKey; }
    void setByKey(bool byKey);
    [[nodiscard]] bool isFocusVisible() const { return m_byKey && hasActiveFocus(); }

Q_SIGNALS:
    void focusVisibleChanged();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool m_byKey = false;
};
