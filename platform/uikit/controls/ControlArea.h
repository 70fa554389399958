// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIControl.h"
#include "platform/uikit/input/KeyFocus.h"

#include <QPointer>
#include <QQuickItem>
#include <QTimer>

/// Where a control is touched, with a finger or with the mouse, or pressed with the keyboard. It
/// reaches beyond its rectangle to at least 44 x 44 points, save where something else lies. In what
/// scrolls it waits a moment, so that a finger that comes to scroll presses nothing.
class ControlArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(UIControl *receiver READ receiver WRITE setReceiver NOTIFY receiverChanged FINAL)
    /// Whether what scrolls may still take a touch that has pressed.
    Q_PROPERTY(bool yields MEMBER m_yields FINAL)
    /// Whether to show that the control has the keyboard.
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit ControlArea(QQuickItem *parent = nullptr);
    ~ControlArea() override;

    [[nodiscard]] UIControl *receiver() const { return m_receiver; }
    void setReceiver(UIControl *receiver);
    [[nodiscard]] bool isFocusVisible() const { return m_keyFocus.isVisible(); }

    /// What a key and a screen reader's press do.
    Q_INVOKABLE void activate();
    /// What is pressed is let go of: to lift the finger does nothing any more.
    Q_INVOKABLE void cancel();
    /// Whether a press at `point` is the control's.
    [[nodiscard]] bool contains(const QPointF &point) const override;

Q_SIGNALS:
    void receiverChanged();
    void focusVisibleChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] QRectF reach() const;
    void begin(const QPointF &point);
    void press();
    void keepGrab(bool keep);
    void move(const QPointF &point);
    void end(const QPointF &point);

    QPointer<UIControl> m_receiver;
    QTimer m_press;
    QPointF m_at; // where the touch was seen last
    int m_touch = -1;
    bool m_yields = false;
    KeyFocus m_keyFocus{*this};
};
