// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"
#include "sandbox/http/Reception.h"

#include <mutex>
#include <vector>

namespace sandbox {

/// What is staged for the requests and connections to come. Safe on any thread.
class StageBook {
public:
    /// For the next `count` requests of that path ("*": of any); for good if negative.
    void stage(const QByteArray &path, const Fault &fault, int count);
    /// For the next `count` connections; for good if negative.
    void receive(Reception reception, int count);
    void clear();

    /// Uses up what is staged first for that path.
    std::optional<Fault> takeFault(const QByteArray &path);
    /// Uses up what is staged first for connections: Normal if nothing is.
    Reception takeReception();

private:
    struct StagedFault {
        QByteArray path;
        Fault fault;
        int left;
    };
    struct StagedReception {
        Reception reception;
        int left;
    };

    std::mutex m_mutex;
    std::vector<StagedFault> m_faults;
    std::vector<StagedReception> m_receptions;
};

} // namespace sandbox
