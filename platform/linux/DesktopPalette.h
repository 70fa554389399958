// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QObject>

#include <functional>

/// Light or dark as the application's palette shows it, live. Without a GUI application it says
/// nothing.
class DesktopPalette : public QObject {
    Q_OBJECT

public:
    /// `changed` is called after each change of the palette.
    explicit DesktopPalette(std::function<void()> changed);

    /// Dark when text is lighter than what it stands on. Otherwise unspecified: a light palette is
    /// also what Qt has on a desktop that sets none.
    [[nodiscard]] UIUserInterfaceStyle style() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_changed;
};
