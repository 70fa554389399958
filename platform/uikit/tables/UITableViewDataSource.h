// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/NSIndexPath.h"

#include <QString>

#include <memory>
#include <optional>

class UITableViewCell;

/// The contents of a table. It is asked for counts and titles when the table is first drawn and at
/// each `reloadData`, and for the cell of a row whenever that row comes on screen.
class UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;

    [[nodiscard]] virtual int numberOfSections() const { return 1; }
    [[nodiscard]] virtual int numberOfRowsInSection(int section) const = 0;
    /// The row's cell, dequeued or made; must not be null.
    [[nodiscard]] virtual std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) = 0;
    /// The text below a section; absent for none.
    [[nodiscard]] virtual std::optional<QString> titleForFooterInSection(int section) const;
};

inline std::optional<QString> UITableViewDataSource::titleForFooterInSection(int /*section*/) const
{
    return std::nullopt;
}
