// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/BareWindow.h"

#include <QGuiApplication>
#include <QQuickView>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQuickView view;
    fillBareWindow(view);
    view.show();
    return QGuiApplication::exec();
}
