// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/Statement.h"

#include <sqlite3.h>

namespace sandbox {

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

} // namespace sandbox
