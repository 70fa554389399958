// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QObject>

#include <functional>

/// The light or dark style of the application's palette. Unspecified without a GUI application.
class DesktopPalette : public QObject {
    Q_OBJECT

public:
    /// `changed` is called after each change of the palette.
    explicit DesktopPalette(std::function<void()> changed);

    /// Dark if text is lighter than its background. Otherwise unspecified: Qt also has a light
    /// palette on a desktop that sets none.
    [[nodiscard]] UIUserInterfaceStyle style() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_changed;
};
