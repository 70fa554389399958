// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// One life of the application as it is, used at random by somebody who writes its journal to the
/// standard output.
namespace Life {

/// Whom the service knows.
inline const QStringList addresses{QStringLiteral("jo@wzt.example"),
                                   QStringLiteral("kim@wzt.example"),
                                   QStringLiteral("lou@wzt.example")};
inline const QString password = QStringLiteral("secret");

/// The arguments behind the first: the life's number, which is its seed and tells its reports from
/// those of others, the service's port, its authority, after how many microseconds of a change of
/// the session the process dies, 0 for never, and the folder of the small disk that the session is
/// kept on, empty for none. Returns the exit status.
[[nodiscard]] int live(int &argc, char *argv[]);

} // namespace Life
