// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/OneTimePassword.h"

#include <sodium.h>

#include <string_view>

namespace sandbox {

QString makeOneTimePassword()
{
    constexpr std::string_view letters = "abcdefghjkmnpqrstuvwxyz23456789";
    constexpr int groups = 4;
    constexpr int groupSize = 5;
    QString password;
    for (int i = 0; i < groups * groupSize; ++i) {
        if (i > 0 && i % groupSize == 0) {
            password += u'-';
        }
        password +=
            QLatin1Char(letters[randombytes_uniform(static_cast<uint32_t>(letters.size()))]);
    }
    return password;
}

} // namespace sandbox
