// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// libFuzzer's side: the target that WZT_FUZZ_TARGET names, over and over.

#include "tools/fuzz/FuzzTargets.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

const FuzzTarget &chosenTarget()
{
    const QByteArray name = qgetenv("WZT_FUZZ_TARGET");
    const auto all = fuzzTargets();
    const auto found = std::ranges::find(all, QLatin1StringView(name), &FuzzTarget::name);
    if (found == all.end()) {
        std::fputs("There are the targets:", stderr);
        for (const FuzzTarget &target : all) {
            std::fprintf(stderr, " %s", target.name.data());
        }
        std::fputs("\n", stderr);
        std::exit(2);
    }
    return *found;
}

/// Log lines of the readers are dropped; fatal ones end the program.
void logFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler(logFatal);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const FuzzTarget &target = chosenTarget();
    target.read(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
