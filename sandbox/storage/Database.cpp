// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/Database.h"

#include "sandbox/storage/Statement.h"
#include "sandbox/storage/Transaction.h"

#include <QFile>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>

namespace sandbox {

namespace {

constexpr auto settings =
    "PRAGMA busy_timeout=5000; PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;"
    "PRAGMA foreign_keys=ON;";

// Each migrates the tables to the next version, which user_version of the file counts.
constexpr std::array migrations{
    R"(CREATE TABLE accounts (
           number INTEGER PRIMARY KEY AUTOINCREMENT,
           email TEXT NOT NULL COLLATE NOCASE UNIQUE,
           name TEXT NOT NULL,
           reddit TEXT,
           twitter TEXT,
           discord TEXT,
           cydia TEXT,
           early_adopter INTEGER NOT NULL,
           joined TEXT NOT NULL,
           password TEXT NOT NULL
       ) STRICT;
       CREATE TABLE resets (
           account INTEGER PRIMARY KEY REFERENCES accounts (number) ON DELETE CASCADE,
           digest BLOB NOT NULL,
           expires INTEGER NOT NULL
       ) STRICT;
       PRAGMA user_version=1;)",
    R"(CREATE TABLE issues (
           number INTEGER PRIMARY KEY AUTOINCREMENT,
           reference TEXT NOT NULL,
           package TEXT NOT NULL,
           reporter INTEGER NOT NULL,
           title TEXT NOT NULL,
           description TEXT,
           open INTEGER NOT NULL,
           opened TEXT NOT NULL
       ) STRICT;
       CREATE INDEX issues_of_package ON issues (package, opened);
       PRAGMA user_version=2;)",
};

} // namespace

QString Database::open(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // SQLite would make it, and all that it keeps beside it, readable for others.
    const int file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file >= 0) {
        ::close(file);
    }
    sqlite3 *connection = nullptr;
    const int code = sqlite3_open_v2(
        name.constData(), &connection,
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX, nullptr);
    m_connection = {connection, sqlite3_close_v2};
    if (code == SQLITE_OK && run(settings) && migrate()) {
        return {};
    }
    return path + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(connection));
}

qint64 Database::version()
{
    Statement query(*this, "PRAGMA user_version");
    return query.nextRow() ? query.number(0) : -1;
}

bool Database::migrate()
{
    for (;;) {
        Transaction transaction(*this);
        const qint64 reached = version();
        if (reached < 0 || reached >= static_cast<qint64>(migrations.size())) {
            return reached == static_cast<qint64>(migrations.size());
        }
        if (!run(migrations[static_cast<size_t>(reached)]) || !transaction.commit()) {
            return false;
        }
    }
}

bool Database::run(const char *sql)
{
    return sqlite3_exec(m_connection.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

qint64 Database::lastNumber() const
{
    return sqlite3_last_insert_rowid(m_connection.get());
}

int Database::changes() const
{
    return sqlite3_changes(m_connection.get());
}

} // namespace sandbox
