// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/NSIndexPath.h"

/// The height of a row that its cell decides.
inline constexpr double UITableViewAutomaticDimension = -1;

/// The heights of a table, in points, and the actions of its rows.
class UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;

    [[nodiscard]] virtual double heightForRowAtIndexPath(const NSIndexPath & /*indexPath*/) const
    {
        return UITableViewAutomaticDimension;
    }
    /// The height of the footer of a section; 0 or less stands for the platform's spacing, or for
    /// the height that the footer's title needs.
    [[nodiscard]] virtual double heightForFooterInSection(int /*section*/) const
    {
        return UITableViewAutomaticDimension;
    }
    /// The user chose a row, which stays selected until it is deselected. Cells without a look for
    /// selection are chosen like any other. The table may be reloaded from here.
    virtual void didSelectRowAtIndexPath(const NSIndexPath & /*indexPath*/) {}
};
