// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/input/ScreenReaderFocus.h"
#include "platform/uikit/input/WindowWatcher.h"

/// Takes every key of its window while it is there. The item that has the keyboard keeps it, and
/// with it the on-screen keyboard, but gets no keys; screen readers are told of another item.
class KeyGrabber : public WindowWatcher {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *current READ current WRITE setCurrent NOTIFY currentChanged FINAL)

public:
    /// The item that screen readers are told to have the keyboard.
    [[nodiscard]] QQuickItem *current() const { return m_current; }
    void setCurrent(QQuickItem *current);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void currentChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QPointer<QQuickItem> m_current;
    ScreenReaderFocus m_spoken;
};
