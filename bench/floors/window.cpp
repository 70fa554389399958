// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/floors/BareWindow.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickView>

/// Shows an empty window; with an argument, one that shows this text in the application's font.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQuickView view;
    if (argc > 1) {
        QFont font(QStringLiteral("Inter"));
        font.setPixelSize(17);
        QGuiApplication::setFont(font);
        fillTextWindow(view, QString::fromLocal8Bit(argv[1]));
    } else {
        fillBareWindow(view);
    }
    view.show();
    return QGuiApplication::exec();
}
