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

/// One statement: parameters bound in their order, then stepped through.
class Statement {
public:
    Statement(Database &database, const char *sql);

    Statement &bind(qint64 value);
    Statement &bind(const QString &text);
    Statement &bind(const std::optional<QString> &text);
    Statement &bind(const QByteArray &bytes);

    /// Whether there is a (further) row.
    bool nextRow();
    /// Runs a statement that has no rows. Missing if it changed nothing.
    Outcome change();
    /// Whether something went wrong.
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
