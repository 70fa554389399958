// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <mutex>

struct sqlite3;

namespace sandbox {

/// The outcome of a query or a change.
enum class Outcome {
    Done,
    /// There is no such row.
    Missing,
    /// Another row has the same unique value.
    Taken,
    /// The file could not be read or written.
    Failed,
};

/// The service's SQLite file. A thread must hold the lock to use it.
class Database {
public:
    /// Opens the file or makes it, and migrates its tables. Returns an empty text, or the reason of
    /// a failure.
    QString open(const QString &path);
    [[nodiscard]] std::unique_lock<std::mutex> lock() { return std::unique_lock(m_mutex); }

    /// Runs statements without parameters.
    bool run(const char *sql);
    /// The number of the row inserted last.
    [[nodiscard]] qint64 lastNumber() const;
    /// The number of rows that the last statement changed.
    [[nodiscard]] int changes() const;

private:
    friend class Statement;
    bool migrate();
    qint64 version();

    std::mutex m_mutex;
    std::shared_ptr<sqlite3> m_connection;
};

} // namespace sandbox
