// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Account.h"

#include <QList>

namespace sandbox {

/// An account for demonstrations, and its initial password.
struct DemoAccount {
    Account account;
    QString password;
};

/// An early adopter with all optional fields, an account with a long name of non-ASCII letters, and
/// one without optional fields.
QList<DemoAccount> demoAccounts();

} // namespace sandbox
