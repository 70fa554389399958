// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// A program that is still to be started.
struct Command {
    QString program;
    QStringList arguments = {};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

/// How many million instructions all threads of the program execute from exec to its end, as
/// valgrind counts them: what else runs on the machine does not change that. Where they were
/// executed is left in the file `report`, for callgrind_annotate.
[[nodiscard]] double millionInstructions(const Command &command, const QString &report);

/// The same without a report.
[[nodiscard]] double millionInstructions(const Command &command);
