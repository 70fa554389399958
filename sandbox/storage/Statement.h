// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Database.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

struct sqlite3_stmt;

namespace sandbox {

/// One SQL statement. Bind its parameters in order, then read its rows or run its change.
class Statement {
public:
    Statement(Database &database, const char *sql);

    Statement &bind(qint64 value);
    Statement &bind(const QString &text);
    Statement &bind(const std::optional<QString> &text);
    Statement &bind(const QByteArray &bytes);

    /// Steps to the next row; false if there is none.
    bool nextRow();
    /// Runs a statement without rows. Missing if it changed nothing.
    Outcome change();
    /// Whether any step failed.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] std::optional<QString> optionalText(int column) const;
    [[nodiscard]] QByteArray bytes(int column) const;

private:
    void check(int code);

    Database &m_database;
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> m_statement;
    int m_bound = 0;
    bool m_hasFailed = false;
};

} // namespace sandbox
