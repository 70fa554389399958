// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Reply.h"
#include "sandbox/storage/Account.h"

namespace sandbox {

/// The reply with the fields of an account.
Reply userReply(const Account &account);

} // namespace sandbox
