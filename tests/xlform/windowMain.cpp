// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"

#include <QFont>
#include <QGuiApplication>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(UIKitPlugin)
Q_IMPORT_QML_PLUGIN(XLFormPlugin)

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    return TestRunner::run();
}
