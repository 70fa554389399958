// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace CommandLine {

/// The URLs on the command line. Prints the version or the help and ends the process with status 0
/// if an option asks for it, and ends it with status 1 after an unknown option. Needs no display;
/// call it before the application object is made.
[[nodiscard]] QStringList urls(int argc, char *argv[]);

} // namespace CommandLine
