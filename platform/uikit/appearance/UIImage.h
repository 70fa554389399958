// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration/qqmlintegration.h>

/// A picture of the build, known by its asset name ("wztLogo"). Default-constructed: no picture.
class UIImage {
    Q_GADGET
    QML_VALUE_TYPE(uiImage)
    Q_PROPERTY(QString name READ name FINAL)
    Q_PROPERTY(bool isTemplate READ isTemplate FINAL)

public:
    UIImage() = default;

    /// The picture of that name; no picture if the build has none of that name.
    [[nodiscard]] static UIImage imageNamed(const QString &name);

    [[nodiscard]] QString name() const { return m_name; }
    /// Whether the picture is drawn in the tint of its view rather than in its own colours.
    [[nodiscard]] bool isTemplate() const;
    /// Where the picture's SVG lies; empty for no picture.
    [[nodiscard]] static QString pathOfImageNamed(const QString &name);

    bool operator==(const UIImage &) const = default;

private:
    explicit UIImage(const QString &name) : m_name(name) {}

    QString m_name;
};
