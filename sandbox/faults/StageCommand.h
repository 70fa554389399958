// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

class StagedFaults;

/// Runs one line:
///     PATH FAULT [ARGUMENTS] [COUNT]     "/login.php delay 3000 2"
///     connection KIND [COUNT]            "connection expired"
///     clear
/// The count defaults to 1; a negative count has no end. Blanks separate words; apostrophes quote a
/// word or a part of one. In the text of "raw" \r, \n, \t, \xNN and \\ stand for bytes. Returns an
/// empty text, or an error message if the line is invalid and nothing was staged.
QString stageLine(StagedFaults &staged, const QString &line);

/// A help text with all faults and kinds of connections, one in a line.
QString stageCommandHelp();

} // namespace sandbox
