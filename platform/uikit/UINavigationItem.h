// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration>

/// What a navigation bar shows for a controller.
class UINavigationItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a controller")
    Q_PROPERTY(QString title READ title NOTIFY changed)

public:
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);

Q_SIGNALS:
    void changed();

private:
    QString m_title;
};
