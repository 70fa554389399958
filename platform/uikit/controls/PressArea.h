// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/ControlArea.h"

/// A button of the platform's own drawings, such as an alert's or a bar's: touched and pressed
/// like any control.
class PressArea : public ControlArea {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool highlighted READ isHighlighted NOTIFY highlightedChanged FINAL)

public:
    explicit PressArea(QQuickItem *parent = nullptr);

    /// Whether a finger is on the button.
    [[nodiscard]] bool isHighlighted() const { return m_control.isHighlighted(); }

Q_SIGNALS:
    void highlightedChanged();
    /// The button was touched or pressed.
    void triggered();

private:
    UIControl m_control;
};
