// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Prints the cost of starting, drawing, decoding, asking the service and doing nothing, each figure
// beside its floor. It judges nothing: a machine that is busy or slow makes no test fail.

#include "bench/Decoding.h"
#include "bench/Idle.h"
#include "bench/Measurements.h"

#include <QFont>
#include <QGuiApplication>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::pair<const char *, void (*)(const QStringList &arguments)> measurements[] = {
    {"starts", measureStarts},     {"frames", measureFrames}, {"decoding", measureDecoding},
    {"requests", measureRequests}, {"idle", measureIdle},
};

/// The parts of measurements that run in a process of their own.
constexpr std::pair<const char *, void (*)(const QStringList &arguments)> parts[] = {
    {"decode", decode},
    {"rest", rest},
};

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(u"Inter"_s));
    const QStringList arguments = QGuiApplication::arguments();
    const QString wanted = arguments.value(1);
    for (const auto &[name, run] : parts) {
        if (wanted == QLatin1StringView(name)) {
            run(arguments.mid(2));
            return 0;
        }
    }
    bool isKnown = false;
    for (const auto &[name, measure] : measurements) {
        if (!wanted.isEmpty() && wanted != QLatin1StringView(name)) {
            continue;
        }
        isKnown = true;
        measure(arguments.mid(2));
    }
    if (!isKnown) {
        std::fputs("usage: wzt-bench [starts [DIR]|frames|decoding|requests|idle]\n", stderr);
    }
    return isKnown ? 0 : 2;
}
