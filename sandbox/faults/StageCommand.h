// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

class StagedFaults;

/// Stages what one line says:
///     PATH FAULT [ARGUMENTS] [COUNT]     "/login.php delay 3000 2"
///     connection KIND [COUNT]            "connection expired"
///     clear
/// The count is 1 if it is left out, and negative for no end. Words are separated by blanks; what
/// stands between apostrophes is one word, or part of one. In the text of "raw", \r, \n, \t, \xNN
/// and \\ stand for bytes. Returns an empty text, or what is wrong; then nothing is staged.
QString stageLine(StagedFaults &staged, const QString &line);

/// The faults and kinds of connections, one a line, for a help text.
QString stageCommandHelp();

} // namespace sandbox
