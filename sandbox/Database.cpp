// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Database.h"

#include <QFile>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>

namespace sandbox {

namespace {

constexpr auto settings =
    "PRAGMA journal_mode=WAL; PRAGMA foreign_keys=ON; PRAGMA busy_timeout=5000;"
    "PRAGMA secure_delete=ON;";

// Each brings the tables from one version to the next; the file's user_version counts them.
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
        if (reached < 0 || reached >= qint64(migrations.size())) {
            return reached == qint64(migrations.size());
        }
        if (!run(migrations[size_t(reached)]) || !transaction.commit()) {
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

Statement::Statement(Database &database, const char *sql)
    : m_database(database), m_statement(nullptr, sqlite3_finalize)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(database.m_connection.get(), sql, -1, &statement, nullptr));
    m_statement.reset(statement);
}

void Statement::check(int code)
{
    m_hasFailed = m_hasFailed || code != SQLITE_OK;
}

Statement &Statement::bind(qint64 value)
{
    check(sqlite3_bind_int64(m_statement.get(), ++m_bound, value));
    return *this;
}

Statement &Statement::bind(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    check(sqlite3_bind_text64(m_statement.get(), ++m_bound, bytes.constData(),
                              sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

Statement &Statement::bind(const std::optional<QString> &text)
{
    if (text) {
        return bind(*text);
    }
    check(sqlite3_bind_null(m_statement.get(), ++m_bound));
    return *this;
}

Statement &Statement::bind(const QByteArray &bytes)
{
    check(sqlite3_bind_blob64(m_statement.get(), ++m_bound, bytes.constData(),
                              sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT));
    return *this;
}

bool Statement::nextRow()
{
    if (m_hasFailed) {
        return false;
    }
    const int code = sqlite3_step(m_statement.get());
    m_hasFailed = code != SQLITE_ROW && code != SQLITE_DONE;
    return code == SQLITE_ROW;
}

Outcome Statement::change()
{
    if (m_hasFailed) {
        return Outcome::Failed;
    }
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_CONSTRAINT) {
        return Outcome::Taken;
    }
    m_hasFailed = code != SQLITE_DONE;
    if (m_hasFailed) {
        return Outcome::Failed;
    }
    return m_database.changes() > 0 ? Outcome::Done : Outcome::Missing;
}

qint64 Statement::number(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

QString Statement::text(int column) const
{
    return QString::fromUtf8(bytes(column));
}

std::optional<QString> Statement::optionalText(int column) const
{
    if (sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL) {
        return {};
    }
    return text(column);
}

QByteArray Statement::bytes(int column) const
{
    const void *bytes = sqlite3_column_blob(m_statement.get(), column);
    return {static_cast<const char *>(bytes), sqlite3_column_bytes(m_statement.get(), column)};
}

Transaction::Transaction(Database &database)
    : m_database(database), m_isOpen(database.run("BEGIN IMMEDIATE"))
{
}

Transaction::~Transaction()
{
    if (m_isOpen) {
        m_database.run("ROLLBACK");
    }
}

bool Transaction::commit()
{
    const bool isCommitted = m_isOpen && m_database.run("COMMIT");
    m_isOpen = m_isOpen && !isCommitted;
    return isCommitted;
}

} // namespace sandbox
