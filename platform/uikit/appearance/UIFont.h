// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

enum class UIFontTextStyle { Title2, Headline, Body, Footnote, Caption, TabTitle };

/// A size in points and a weight; the family is the application's.
class UIFont {
    Q_GADGET
    QML_VALUE_TYPE(uiFont)

public:
    /// The font of labels and fields.
    UIFont() = default;

    [[nodiscard]] static UIFont preferredFontForTextStyle(UIFontTextStyle style);
    [[nodiscard]] static UIFont systemFontOfSize(double points,
                                                 QFont::Weight weight = QFont::Normal);

    /// The font for Qt: one point is one pixel at a text scale of 1.
    Q_INVOKABLE [[nodiscard]] QFont toQFont(double textScale) const;

    bool operator==(const UIFont &) const = default;

private:
    UIFont(double pointSize, QFont::Weight weight) : m_pointSize(pointSize), m_weight(weight) {}

    double m_pointSize = 17;
    QFont::Weight m_weight = QFont::Normal;
};
