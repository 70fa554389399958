// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIButton.h"

/// A rounded, bordered button of one colour under a fixed shine, darker while pressed.
class WZTGlossyButton : public UIButton {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a cell")

public:
    /// The shine keeps the size of `frame`, in points, when the button is drawn in another size.
    WZTGlossyButton(const QRectF &frame, const UIColor &color);
    ~WZTGlossyButton() override;

    /// Gives `button` the fixed look over `color`. Each call adds one more shine.
    static void makeButtonShiny(WZTGlossyButton &button, const UIColor &color);

    /// The fill while the button is not pressed. The setter also fills a pressed button at once.
    [[nodiscard]] UIColor buttonColor() const { return m_buttonColor; }
    void setButtonColor(const UIColor &color);

    // The button's own touch handlers. It stays pressed after a cancelled touch, and after a touch
    // that ends outside without a drag exit.
    void wasPressed();
    void endedPress();

private:
    UIColor m_buttonColor;
};
