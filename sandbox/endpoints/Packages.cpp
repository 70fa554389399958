// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/Packages.h"

using namespace Qt::StringLiterals;

namespace sandbox {

const QStringList &packages()
{
    static const QString prefix = QStringLiteral(WZT_SANDBOX_VENDOR_PREFIX) + u'.';
    static const QStringList all{prefix + "pintle"_L1,  prefix + "itsmarrow"_L1,
                                 prefix + "qelvan"_L1,  prefix + "tessaroo"_L1,
                                 prefix + "halden3"_L1, prefix + "kiteloom"_L1};
    return all;
}

} // namespace sandbox
