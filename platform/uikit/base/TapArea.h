// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"
#include "platform/uikit/input/WindowWatcher.h"

#include <optional>

/// Tells a view of the taps on it: put into the item that draws the view, it sees the taps on all
/// of that item, without taking them from the controls there. A tap on a text field is left to the
/// field, which would lose the keyboard again at once.
class TapArea : public WindowWatcher {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        UIView *receiver READ receiver WRITE setReceiver NOTIFY receiverChanged REQUIRED FINAL)

public:
    [[nodiscard]] UIView *receiver() const { return m_receiver; }
    void setReceiver(UIView *receiver);

    /// Watches the window, where no grab hides a touch.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void receiverChanged();

private:
    void watch(const QPointerEvent &event);
    [[nodiscard]] bool takes(const QPointF &scene) const;

    QPointer<UIView> m_receiver;
    std::optional<QPointF> m_press;
};
