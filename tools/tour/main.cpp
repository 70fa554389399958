// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Drives the application through every screen in every look, and leaves a picture of each.

#include "tools/tour/Tour.h"

#include <QFont>
#include <QGuiApplication>
#include <QTest>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc < 3 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))
        || QByteArray(argv[2]).toDouble() <= 0) {
        std::fputs("usage: wzt-tour DIR PIXELS_A_POINT [picture:LOOK/NAME...]\n", stderr);
        return 2;
    }
    qputenv("QT_SCALE_FACTOR", argv[2]);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    const QStringList arguments = QGuiApplication::arguments();
    Tour tour((QDir(arguments[1])));
    return QTest::qExec(&tour, QStringList{arguments[0]} + arguments.sliced(3));
}
