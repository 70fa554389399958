// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIFont.h"
#include "platform/uikit/controls/UIControl.h"
#include "platform/uikit/text/UITextInputTraits.h"

/// One line of text to edit. Sends EditingDidBegin and EditingDidEnd as it gets and loses the
/// keyboard, EditingChanged at every edit by the user, EditingDidEndOnExit at Return.
class UITextField : public UIControl {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(QString text READ shownText NOTIFY changed FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed FINAL)
    Q_PROPERTY(UIColor placeholderColor READ placeholderColor NOTIFY changed FINAL)
    Q_PROPERTY(UIColor textColor READ textColor NOTIFY changed FINAL)
    Q_PROPERTY(UIFont font READ font NOTIFY changed FINAL)
    Q_PROPERTY(BorderStyle borderStyle READ borderStyle NOTIFY changed FINAL)
    Q_PROPERTY(UIColor fillColor READ fillColor NOTIFY changed FINAL)
    Q_PROPERTY(double leftViewWidth READ leftViewWidth NOTIFY changed FINAL)
    Q_PROPERTY(bool secureTextEntry READ isSecureTextEntry NOTIFY changed FINAL)
    Q_PROPERTY(Qt::InputMethodHints inputMethodHints READ inputMethodHints NOTIFY changed FINAL)

public:
    enum class BorderStyle { None, RoundedRect };
    Q_ENUM(BorderStyle)

    /// Empty until a text is typed or set; nil only when set so.
    [[nodiscard]] std::optional<QString> text() const { return m_text; }
    /// Sets the text without sending EditingChanged.
    void setText(const std::optional<QString> &text);
    /// Empties the field and overwrites its text, so that no secret outlives its use. Secure text
    /// is also overwritten whenever it is replaced.
    void erase();

    [[nodiscard]] QString placeholder() const { return m_placeholder; }
    void setPlaceholder(const QString &placeholder) { assign(m_placeholder, placeholder); }
    /// No colour until one is set: the drawing's own.
    [[nodiscard]] UIColor placeholderColor() const { return m_placeholderColor; }
    /// The placeholder and its colour in one.
    void setAttributedPlaceholder(const QString &placeholder, const UIColor &color);

    [[nodiscard]] UIColor textColor() const { return m_textColor; }
    void setTextColor(const UIColor &color) { assign(m_textColor, color); }
    [[nodiscard]] UIFont font() const { return m_font; }
    void setFont(const UIFont &font) { assign(m_font, font); }

    [[nodiscard]] BorderStyle borderStyle() const { return m_borderStyle; }
    void setBorderStyle(BorderStyle style) { assign(m_borderStyle, style); }
    /// The ground of the text: the view's background, or a rounded rectangle's own.
    [[nodiscard]] UIColor fillColor() const;

    /// The blank before the text, in points, shown always.
    [[nodiscard]] double leftViewWidth() const { return m_leftViewWidth; }
    void setLeftViewWidth(double width) { assign(m_leftViewWidth, width); }

    [[nodiscard]] UITextInputTraits inputTraits() const { return m_traits; }
    void setInputTraits(const UITextInputTraits &traits) { assign(m_traits, traits); }
    [[nodiscard]] bool isSecureTextEntry() const { return m_traits.secureTextEntry; }
    [[nodiscard]] Qt::InputMethodHints inputMethodHints() const
    {
        return m_traits.inputMethodHints();
    }

    [[nodiscard]] bool canBecomeFirstResponder() const override { return true; }
    /// The label set, or else the placeholder; never the text.
    [[nodiscard]] QString accessibilityLabel() const override;

    // The user's actions, for the drawing of the field.
    /// Whether the text is this one, its line breaks made blanks.
    Q_INVOKABLE [[nodiscard]] bool shows(const QString &text) const;
    /// The text is now this one, its line breaks made blanks: sends EditingChanged if it changed.
    Q_INVOKABLE void edit(const QString &text);
    /// Return: sends EditingDidEndOnExit.
    Q_INVOKABLE void returnPressed();

protected:
    void firstResponderDidChange() override;

private:
    [[nodiscard]] QString shownText() const { return m_text.value_or(QString()); }

    std::optional<QString> m_text = QString();
    QString m_placeholder;
    UIColor m_placeholderColor;
    UIColor m_textColor = UIColor::labelColor();
    UIFont m_font;
    BorderStyle m_borderStyle = BorderStyle::None;
    double m_leftViewWidth = 0;
    UITextInputTraits m_traits;
};
