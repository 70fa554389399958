// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"

/// A grey spinner, hidden while it is stopped.
class UIActivityIndicatorView : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(bool animating READ isAnimating NOTIFY changed FINAL)
    Q_PROPERTY(bool hidden READ isHidden NOTIFY changed FINAL)

public:
    enum class Style { Gray = 2 };

    /// The style decides nothing: there is one drawing.
    explicit UIActivityIndicatorView(Style = Style::Gray) {}

    /// True unless set: while stopped the spinner is not shown at all.
    void setHidesWhenStopped(bool hides) { assign(m_hidesWhenStopped, hides); }

    [[nodiscard]] bool isAnimating() const { return m_animating; }
    void startAnimating() { assign(m_animating, true); }
    void stopAnimating() { assign(m_animating, false); }

    [[nodiscard]] bool isHidden() const { return m_hidesWhenStopped && !m_animating; }

private:
    bool m_hidesWhenStopped = true;
    bool m_animating = false;
};
