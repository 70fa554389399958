// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UIView.h"

#include <QPointer>
#include <QQuickItem>

/// The place of a view's tap recognisers: tells the view of the taps on it and on what it holds,
/// save those on text fields, which would lose the keyboard again at once.
class UITapArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(UIView *receiver READ receiver WRITE setReceiver NOTIFY receiverChanged REQUIRED)

public:
    [[nodiscard]] UIView *receiver() const { return m_receiver; }
    void setReceiver(UIView *receiver);

    /// A tap at `point` of this item has ended.
    Q_INVOKABLE void tap(const QPointF &point);

Q_SIGNALS:
    void receiverChanged();

private:
    QPointer<UIView> m_receiver;
};
