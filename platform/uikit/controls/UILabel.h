// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIFont.h"
#include "platform/uikit/base/UIView.h"

/// Text on one line, ended by an ellipsis where it does not fit, or on several. Without text it has
/// no height.
class UILabel : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(UIFont font READ font NOTIFY changed FINAL)
    Q_PROPERTY(UIColor textColor READ textColor NOTIFY changed FINAL)
    Q_PROPERTY(NSTextAlignment textAlignment READ textAlignment NOTIFY changed FINAL)
    Q_PROPERTY(int numberOfLines READ numberOfLines NOTIFY changed FINAL)

public:
    /// `Natural`: where the text's line begins in the interface's direction.
    enum NSTextAlignment { Center = 1, Natural = 4 };
    Q_ENUM(NSTextAlignment)

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text) { assign(m_text, text); }

    [[nodiscard]] UIFont font() const { return m_font; }
    void setFont(const UIFont &font) { assign(m_font, font); }

    [[nodiscard]] UIColor textColor() const { return m_textColor; }
    void setTextColor(const UIColor &color) { assign(m_textColor, color); }

    [[nodiscard]] NSTextAlignment textAlignment() const { return m_textAlignment; }
    void setTextAlignment(NSTextAlignment alignment) { assign(m_textAlignment, alignment); }

    /// The lines at most, 1 unless set; 0 for as many as the text needs.
    [[nodiscard]] int numberOfLines() const { return m_numberOfLines; }
    void setNumberOfLines(int lines) { assign(m_numberOfLines, lines); }

    [[nodiscard]] QString accessibilityLabel() const override;

private:
    QString m_text;
    UIFont m_font;
    UIColor m_textColor = UIColor::labelColor();
    NSTextAlignment m_textAlignment = Natural;
    int m_numberOfLines = 1;
};
