// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIButton.h"

/// A rounded, bordered button of one colour, darker while a finger is on it, under a fixed shine.
class WZTGlossyButton : public UIButton {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a cell")
    Q_CLASSINFO("view", "Views/WZTGlossyButtonView.qml")

public:
    /// The shine keeps the size of `frame`, in points, whatever size the button is drawn in.
    WZTGlossyButton(const QRectF &frame, const UIColor &color);
    ~WZTGlossyButton() override;

    /// Gives `button` the fixed look over `color`. Each call adds one more shine.
    static void makeButtonShiny(WZTGlossyButton &button, const UIColor &color);

    /// The fill while no finger is on the button. Setting it fills the button at once, pressed or
    /// not.
    [[nodiscard]] UIColor buttonColor() const { return m_buttonColor; }
    void setButtonColor(const UIColor &color);

    // What the button's own touches do. A touch that is cancelled, or that ends outside without
    // having been seen to leave, leaves it pressed.
    void wasPressed();
    void endedPress();

private:
    UIColor m_buttonColor;
};
