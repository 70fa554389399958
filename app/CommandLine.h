// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace CommandLine {

/// The URLs that the program was started with. Ends the process when it is asked for its version
/// or for help (status 0), or for what it does not know (status 1). Needs no display: to be called
/// before the application object is made.
[[nodiscard]] QStringList urls(int argc, char *argv[]);

} // namespace CommandLine
