// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIControl.h"
#include "platform/uikit/input/KeyFocus.h"

#include <QPointer>
#include <QQuickItem>
#include <QTimer>

/// Takes the touches of a control, by finger and by mouse, and its keys. It reaches beyond its
/// rectangle to at least 44 x 44 points, except where another item lies. In a page that scrolls it
/// waits a moment, so that a finger that comes to scroll presses nothing.
class ControlArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(UIControl *receiver READ receiver WRITE setReceiver NOTIFY receiverChanged FINAL)
    /// Whether a page that scrolls may still take a touch that has pressed.
    Q_PROPERTY(bool yields MEMBER m_yields FINAL)
    /// Whether to show that the control has the keyboard.
    Q_PROPERTY(bool focusVisible READ isFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit ControlArea(QQuickItem *parent = nullptr);
    ~ControlArea() override;

    [[nodiscard]] UIControl *receiver() const { return m_receiver; }
    void setReceiver(UIControl *receiver);
    [[nodiscard]] bool isFocusVisible() const { return m_keyFocus.isVisible(); }

    /// Acts as a key or a screen reader's press.
    Q_INVOKABLE void activate();
    /// Ends the touch: lifting the finger does nothing any more.
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
