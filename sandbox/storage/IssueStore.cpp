// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/IssueStore.h"

#include "sandbox/storage/Statement.h"
#include "sandbox/storage/Transaction.h"

#include <QRandomGenerator>

namespace sandbox {

namespace {

QString makeReference()
{
    const quint32 number = QRandomGenerator::system()->generate();
    return QString::number(number, 16).rightJustified(8, u'0');
}

} // namespace

Outcome IssueStore::add(QList<Issue> *issues)
{
    const auto lock = m_database.lock();
    Transaction transaction(m_database);
    for (Issue &issue : *issues) {
        if (insert(&issue) != Outcome::Done) {
            return Outcome::Failed;
        }
    }
    return transaction.commit() ? Outcome::Done : Outcome::Failed;
}

Outcome IssueStore::insert(Issue *issue)
{
    if (issue->reference.isEmpty()) {
        issue->reference = makeReference();
    }
    if (issue->opened.isEmpty()) {
        issue->opened = m_clock.text();
    }
    Statement insert(m_database,
                     "INSERT INTO issues (reference, package, reporter, title, description, open,"
                     " opened) VALUES (?, ?, ?, ?, ?, ?, ?)");
    const Outcome outcome = insert.bind(issue->reference)
                                .bind(issue->package)
                                .bind(issue->reporter)
                                .bind(issue->title)
                                .bind(issue->description)
                                .bind(qint64{issue->isOpen})
                                .bind(issue->opened)
                                .change();
    if (outcome == Outcome::Done) {
        issue->number = m_database.lastNumber();
    }
    return outcome;
}

Outcome IssueStore::list(const QString &package, QList<Issue> *issues)
{
    const auto lock = m_database.lock();
    Statement query(m_database,
                    "SELECT number, reference, package, reporter, title, description, open, opened"
                    " FROM issues WHERE package = ? ORDER BY opened DESC, number DESC");
    query.bind(package);
    while (query.nextRow()) {
        issues->append({.number = query.number(0),
                        .reference = query.text(1),
                        .package = query.text(2),
                        .reporter = query.number(3),
                        .title = query.text(4),
                        .description = query.optionalText(5),
                        .isOpen = query.number(6) != 0,
                        .opened = query.text(7)});
    }
    return query.hasFailed() ? Outcome::Failed : Outcome::Done;
}

int IssueStore::count()
{
    const auto lock = m_database.lock();
    Statement query(m_database, "SELECT count(*) FROM issues");
    return query.nextRow() ? static_cast<int>(query.number(0)) : -1;
}

} // namespace sandbox
