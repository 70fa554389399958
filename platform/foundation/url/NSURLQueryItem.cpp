// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSURLQueryItem.h"

NSURLQueryItem NSURLQueryItem::queryItemWithName(QString name, std::optional<QString> value)
{
    return {std::move(name), std::move(value)};
}
