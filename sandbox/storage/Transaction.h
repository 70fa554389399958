// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Database.h"

namespace sandbox {

/// A transaction: its changes are rolled back unless they are committed.
class Transaction {
public:
    explicit Transaction(Database &database)
        : m_database(database), m_isOpen(database.run("BEGIN IMMEDIATE"))
    {
    }
    ~Transaction()
    {
        if (m_isOpen) {
            m_database.run("ROLLBACK");
        }
    }
    Q_DISABLE_COPY_MOVE(Transaction)

    /// False if the changes could not be committed.
    bool commit()
    {
        const bool isCommitted = m_isOpen && m_database.run("COMMIT");
        m_isOpen = m_isOpen && !isCommitted;
        return isCommitted;
    }

private:
    Database &m_database;
    bool m_isOpen;
};

} // namespace sandbox
