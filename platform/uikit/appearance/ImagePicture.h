// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickItem>

#include <memory>

class QSvgRenderer;

/// A picture of the build, fitted into the item with its proportions kept, and drawn for exactly
/// the pixels that it has. In one colour, which keeps the picture's alpha, if `tint` is one; a name
/// that the build has no picture of draws nothing.
class ImagePicture : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY changed FINAL)

public:
    explicit ImagePicture(QQuickItem *parent = nullptr);
    ~ImagePicture() override;

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);
    /// Transparent unless set.
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    [[nodiscard]] QImage render(double pixelRatio) const;

    QString m_name;
    QColor m_tint = Qt::transparent;
    std::unique_ptr<QSvgRenderer> m_svg;
};
