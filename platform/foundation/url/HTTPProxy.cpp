// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/HTTPProxy.h"

#include <initializer_list>

namespace {

/// The first variable that is not empty.
QByteArray firstOf(std::initializer_list<const char *> variables)
{
    for (const char *variable : variables) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty()) {
            return value;
        }
    }
    return "";
}

} // namespace

HTTPProxy HTTPProxy::fromEnvironment()
{
    return {firstOf({"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"}),
            firstOf({"no_proxy", "NO_PROXY"})};
}
