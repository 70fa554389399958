// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// The QML modules of this program, linked into it.

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(ScreensPlugin)
Q_IMPORT_QML_PLUGIN(UIKitPlugin)
Q_IMPORT_QML_PLUGIN(ViewsPlugin)
Q_IMPORT_QML_PLUGIN(XLFormPlugin)
