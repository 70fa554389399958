// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlListProperty>

#include <memory>

/// A read-only list of objects for QML: the member `Member` of `owner`, a vector of plain or smart
/// pointers to `Item`.
template <typename Item, auto Member, typename Owner>
[[nodiscard]] QQmlListProperty<Item> listProperty(Owner *owner)
{
    using List = QQmlListProperty<Item>;
    return {owner, nullptr,
            [](List *list) {
                return static_cast<qsizetype>((static_cast<Owner *>(list->object)->*Member).size());
            },
            [](List *list, qsizetype i) -> Item * {
                const auto &items = static_cast<Owner *>(list->object)->*Member;
                return std::to_address(items.at(static_cast<std::size_t>(i)));
            }};
}
