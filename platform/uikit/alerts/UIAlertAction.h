// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

#include <functional>

/// One button of an alert.
class UIAlertAction : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to an alert")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(Style style READ style CONSTANT FINAL)

public:
    enum class Style { Default = 0, Cancel = 1 };
    Q_ENUM(Style)
    using Handler = std::function<void()>;

    UIAlertAction(const QString &title, Style style, Handler handler)
        : m_title(title), m_style(style), m_handler(std::move(handler))
    {
    }

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] Style style() const { return m_style; }

private:
    friend class UIAlertController;

    QString m_title;
    Style m_style;
    Handler m_handler;
};
