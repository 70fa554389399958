// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Drives the application through every screen, in light and dark, and leaves a picture of each.

#include "tests/tour/Tour.h"

#include <QFont>
#include <QGuiApplication>
#include <QTest>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1])) {
        std::fputs("usage: wzt-tour DIR [picture:NAME-LOOK...]\n", stderr);
        return 2;
    }
    Tour tour((QDir(arguments[1])));
    return QTest::qExec(&tour, QStringList{arguments[0]} + arguments.sliced(2));
}
