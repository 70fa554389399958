// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"
#include "platform/uikit/input/WindowWatcher.h"

#include <optional>

/// Tells a view of the taps on it: put into the drawing of the view, it sees the taps on all of it,
/// without taking them from the controls there. A tap on a text field is left to the field, which
/// would lose the keyboard again at once. It watches the window, where no grab hides a touch, and
/// only for a view that has a recogniser.
class TapArea : public WindowWatcher {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        UIView *receiver READ receiver WRITE setReceiver NOTIFY receiverChanged REQUIRED FINAL)

public:
    [[nodiscard]] UIView *receiver() const { return m_receiver; }
    void setReceiver(UIView *receiver);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void receiverChanged();

private:
    void followReceiver();
    void watch(const QPointerEvent &event);
    [[nodiscard]] bool takes(const QPointF &scene) const;

    QPointer<UIView> m_receiver;
    std::optional<QPointF> m_press;
};
