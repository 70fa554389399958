// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace sandbox {

/// What became of a change.
enum class Outcome {
    Done,
    /// There is no such row.
    Missing,
    /// Another row has what must be unique.
    Taken,
    /// The file could not be read or written.
    Failed,
};

/// The service's SQLite file. Any thread may use it that holds its lock.
class Database {
public:
    /// Opens the file, made if missing, and brings its tables up to date. Returns an empty text, or
    /// why it cannot.
    QString open(const QString &path);
    [[nodiscard]] std::unique_lock<std::mutex> lock() { return std::unique_lock(m_mutex); }

    /// Runs statements without parameters.
    bool run(const char *sql);
    /// The number given to the row inserted last.
    [[nodiscard]] qint64 lastNumber() const;
    /// Rows changed by the last statement.
    [[nodiscard]] int changes() const;

private:
    friend class Statement;
    bool migrate();
    qint64 version();

    std::mutex m_mutex;
    std::shared_ptr<sqlite3> m_connection;
};

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

/// Several changes that take effect together or not at all: undone unless committed.
class Transaction {
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// False if they could not be made to last.
    bool commit();

private:
    Database &m_database;
    bool m_isOpen;
};

} // namespace sandbox
