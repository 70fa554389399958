// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/xlform/XLFormRowDescriptor.h"

#include <vector>

/// Rows of a form that stand together, and the text below them.
class XLFormSectionDescriptor {
public:
    using Rows = std::vector<std::shared_ptr<XLFormRowDescriptor>>;

    [[nodiscard]] static std::shared_ptr<XLFormSectionDescriptor> formSection()
    {
        return std::make_shared<XLFormSectionDescriptor>();
    }

    /// Absent unless set.
    [[nodiscard]] std::optional<QString> footerTitle() const { return m_footerTitle; }
    void setFooterTitle(const QString &title) { m_footerTitle = title; }

    void addFormRow(std::shared_ptr<XLFormRowDescriptor> row) { m_rows.push_back(std::move(row)); }
    [[nodiscard]] const Rows &formRows() const { return m_rows; }

private:
    std::optional<QString> m_footerTitle;
    Rows m_rows;
};
