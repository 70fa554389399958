// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTSession.h"
#include "tools/soak/SmallDisk.h"

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
    /// In front of `session`, which outlives it. `disk` is the folder of the small disk that the
    /// session is kept on; empty for none.
    Session(WZTSession &session, QString disk);

    void setDiskFull(bool full) { full ? void(m_filled.emplace(m_disk)) : m_filled.reset(); }

    [[nodiscard]] const std::optional<WZTUser> &currentUser() const override
    {
        return m_session.currentUser();
    }
    void setCurrentUser(const WZTUser &user) override;
    void logout() override;

private:
    WZTSession &m_session;
    QString m_disk;
    std::optional<FilledDisk> m_filled;
};

} // namespace Journal
