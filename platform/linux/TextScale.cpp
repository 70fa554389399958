// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/TextScale.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Xft.dpi, which Qt reads as a whole number, at a ratio of 1.
constexpr double wholeDpi = 96;

double ownFactor()
{
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    return factor > 0 ? factor : 1.0;
}

} // namespace

double TextScale::remaining(double textScale)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const double ratio = screen ? screen->devicePixelRatio() : 1.0;
    return remaining(textScale, QGuiApplication::platformName(), ratio / ownFactor());
}

// The ratio is the text scale times the window scale, a whole number. One that fits by chance, as
// 2 does for a text scale of 2, counts as well: desktops with this text scale make Xft.dpi of it.
double TextScale::remaining(double textScale, QStringView platform, double ratio)
{
    const double windowScale = std::max(1.0, std::round(ratio / textScale));
    const double excess = std::abs(ratio - textScale * windowScale) * wholeDpi;
    return platform == "xcb"_L1 && excess <= 1.0 ? 1.0 : textScale;
}
