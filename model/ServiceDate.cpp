// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/ServiceDate.h"

#include "platform/foundation/dates/NSDateFormatter.h"

#include <QJsonValue>

using namespace Qt::StringLiterals;

std::optional<NSDate> serviceDate(const QJsonValue &value)
{
    if (!value.isString()) {
        return std::nullopt;
    }
    NSDateFormatter formatter;
    formatter.setDateFormat(u"yyy-MM-dd HH:mm:ss"_s);
    return formatter.dateFromString(value.toString());
}
