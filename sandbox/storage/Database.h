// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <mutex>

struct sqlite3;

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

} // namespace sandbox
