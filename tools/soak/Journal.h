// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/FullDisk.h"
#include "model/WZTSession.h"

#include <QByteArray>

#include <optional>

/// The lines that a life of the application writes for its ledger. A line is kept even if the
/// process is killed right after it.
namespace Journal {

/// Any thread.
void note(const QByteArray &line);

/// Counts the objects that are made and destroyed from now on.
void countObjects();
/// Notes how many live, and the memory.
void noteHome();

/// The session of the application, each change noted before and after it is kept.
class Session : public WZTSession {
public:
    /// In front of `session`, which outlives it.
    explicit Session(WZTSession &session);

    /// Whether files can grow.
    void setDiskFull(bool full) { full ? void(m_fullDisk.emplace()) : m_fullDisk.reset(); }

    [[nodiscard]] const std::optional<WZTUser> &currentUser() const override
    {
        return m_session.currentUser();
    }
    void setCurrentUser(const WZTUser &user) override;
    void logout() override;

private:
    WZTSession &m_session;
    std::optional<FullDisk> m_fullDisk;
};

} // namespace Journal
