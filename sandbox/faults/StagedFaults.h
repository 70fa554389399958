// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"
#include "sandbox/http/ConnectionKind.h"

#include <mutex>
#include <vector>

namespace sandbox {

/// The faults for coming requests and connections. Safe on any thread.
class StagedFaults {
public:
    /// For the next `count` requests of that path, "*" for any; until clear() if negative.
    void stage(const QByteArray &path, const Fault &fault, int count);
    /// For the next `count` connections; until clear() if negative.
    void stageConnection(ConnectionKind kind, int count);
    void clear();

    /// Removes and returns the first fault for that path; nil if there is none.
    std::optional<Fault> takeFault(const QByteArray &path);
    /// Removes and returns the kind of the next connection; Normal if none is staged.
    ConnectionKind takeConnectionKind();

private:
    struct StagedFault {
        QByteArray path;
        Fault fault;
        int left;
    };
    struct StagedConnection {
        ConnectionKind kind;
        int left;
    };

    std::mutex m_mutex;
    std::vector<StagedFault> m_faults;
    std::vector<StagedConnection> m_connections;
};

} // namespace sandbox
