// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Clock.h"
#include "sandbox/storage/Database.h"
#include "sandbox/storage/Issue.h"

#include <QList>

namespace sandbox {

/// The issues in the database. Safe on any thread.
class IssueStore {
public:
    IssueStore(Database &database, const Clock &clock) : m_database(database), m_clock(clock) {}

    /// Adds all issues or none. Sets their numbers, and missing references and dates. Done or
    /// Failed.
    Outcome add(QList<Issue> *issues);
    /// The issues of one package, newest first. Done or Failed.
    Outcome list(const QString &package, QList<Issue> *issues);
    /// The number of issues of all packages; -1 on failure.
    int count();

private:
    Outcome insert(Issue *issue);

    Database &m_database;
    const Clock &m_clock;
};

} // namespace sandbox
