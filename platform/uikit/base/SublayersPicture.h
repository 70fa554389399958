// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"

#include <QPointer>
#include <QQuickPaintedItem>

/// The layers over a view, cut off at its rounded corners where the view masks them. It fills the
/// drawing of the view.
class SublayersPicture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(UIView *view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)

public:
    [[nodiscard]] UIView *view() const { return m_view; }
    void setView(UIView *view);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void viewChanged();

private:
    QPointer<UIView> m_view;
};
