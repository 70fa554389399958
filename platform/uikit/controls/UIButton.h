// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIFont.h"
#include "platform/uikit/base/UIEdgeInsets.h"
#include "platform/uikit/controls/UIControl.h"

/// A plain button: a title that dims while a finger is on it.
class UIButton : public UIControl {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(UIColor titleColor READ titleColor NOTIFY changed FINAL)
    Q_PROPERTY(UIFont titleFont READ titleFont NOTIFY changed FINAL)
    Q_PROPERTY(UIEdgeInsets contentEdgeInsets READ contentEdgeInsets NOTIFY changed FINAL)

public:
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title) { assign(m_title, title); }

    [[nodiscard]] UIColor titleColor() const { return m_titleColor; }
    void setTitleColor(const UIColor &color) { assign(m_titleColor, color); }

    /// 18 points unless set.
    [[nodiscard]] UIFont titleFont() const { return m_titleFont; }
    void setTitleFont(const UIFont &font) { assign(m_titleFont, font); }

    /// The room around the title, in points; 6 above and below it unless set.
    [[nodiscard]] UIEdgeInsets contentEdgeInsets() const { return m_contentEdgeInsets; }
    void setContentEdgeInsets(const UIEdgeInsets &insets) { assign(m_contentEdgeInsets, insets); }

    [[nodiscard]] QString accessibilityLabel() const override;

private:
    QString m_title;
    UIColor m_titleColor = UIColor::systemBlueColor();
    UIFont m_titleFont = UIFont::systemFontOfSize(18);
    UIEdgeInsets m_contentEdgeInsets = {.top = 6, .bottom = 6};
};
