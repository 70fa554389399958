// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

/// A picture of the build, fitted into the item with its proportions kept, and drawn at the
/// window's resolution. In one colour, which keeps the picture's alpha, if `tint` is one; a name
/// that the build has no picture of draws nothing.
class ImagePicture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed REQUIRED FINAL)
    /// Transparent unless set.
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY changed FINAL)

public:
    explicit ImagePicture(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    QString m_name;
    QColor m_tint = Qt::transparent;
};
