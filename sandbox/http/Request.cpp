// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/Request.h"

#include <algorithm>

namespace sandbox {

std::optional<QByteArray> Request::header(QByteArrayView name) const
{
    for (const auto &[fieldName, value] : headers) {
        if (fieldName.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

std::optional<QString> Request::parameter(QStringView name) const
{
    const auto item = std::find_if(items.crbegin(), items.crend(),
                                   [name](const QueryItem &each) { return each.name == name; });
    return item == items.crend() ? std::nullopt : std::optional(item->value.value_or(QString()));
}

} // namespace sandbox
