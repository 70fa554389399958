// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Compiled into each test program: with the application that its libraries need.

#include "harness/TestRunner.h"

#ifdef QT_GUI_LIB
#include <QFont>
#include <QGuiApplication>
#else
#include <QCoreApplication>
#endif

int main(int argc, char *argv[])
{
#ifdef QT_GUI_LIB
    const QGuiApplication application(argc, argv);
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(17);
    QGuiApplication::setFont(font);
#else
    const QCoreApplication application(argc, argv);
#endif
    return TestRunner::run();
}
