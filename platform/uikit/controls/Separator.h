// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// A line of one device pixel between rows or, `vertical`, between columns. It gives itself its
/// thickness; the drawing that has it gives it the length.
class Separator : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool vertical READ isVertical WRITE setVertical NOTIFY verticalChanged FINAL)

public:
    explicit Separator(QQuickItem *parent = nullptr);

    [[nodiscard]] bool isVertical() const { return m_vertical; }
    void setVertical(bool vertical);

Q_SIGNALS:
    void verticalChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;

private:
    void followTraits();

    bool m_vertical = false;
};
