// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/DemoAccounts.h"

using namespace Qt::StringLiterals;

namespace sandbox {

QList<DemoAccount> demoAccounts()
{
    return {
        {{.email = u"mara.lindqvist@wzt.example"_s,
          .name = u"Mara Lindqvist"_s,
          .reddit = u"mara_lq"_s,
          .twitter = u"@maralindqvist"_s,
          .discord = u"mara#4821"_s,
          .cydia = u"4270913"_s,
          .earlyAdopter = true,
          .joined = u"2019-08-14 17:05:09"_s},
         u"harbour-lamp-42"_s},
        {{.email = u"bartlomiej@wzt.example"_s,
          .name = u"Bartłomiej Wróblewski-Szczęśniewicz z Żółkiewki"_s,
          .discord = u"wróbel"_s,
          .joined = u"2021-03-28 01:59:59"_s},
         u"zielona-laka-7"_s},
        {{.email = u"sam.okafor@wzt.example"_s,
          .name = u"Sam Okafor"_s,
          .joined = u"2023-11-02 08:30:00"_s},
         u"paper-kite-19"_s},
    };
}

} // namespace sandbox
