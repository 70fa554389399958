// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"
#include "sandbox/http/ConnectionKind.h"

#include <mutex>
#include <vector>

namespace sandbox {

/// What is staged for the requests and connections to come. Safe on any thread.
class StagedFaults {
public:
    /// For the next `count` requests of that path ("*": of any); for good if negative.
    void stage(const QByteArray &path, const Fault &fault, int count);
    /// For the next `count` connections; for good if negative.
    void stageConnection(ConnectionKind kind, int count);
    void clear();

    /// Uses up what is staged first for that path.
    std::optional<Fault> takeFault(const QByteArray &path);
    /// Uses up what is staged first for connections: Normal if nothing is.
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
