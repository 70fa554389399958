// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Account.h"

#include <QList>

namespace sandbox {

/// An account to try things with, and the password it is made with.
struct DemoAccount {
    Account account;
    QString password;
};

/// An early adopter with everything filled in, somebody with a long name of other letters, and
/// somebody with nothing but a name.
QList<DemoAccount> demoAccounts();

} // namespace sandbox
