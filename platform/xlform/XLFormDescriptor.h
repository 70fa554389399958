// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/xlform/XLFormSectionDescriptor.h"

/// The sections of a form, and its title.
class XLFormDescriptor {
public:
    using Sections = std::vector<std::shared_ptr<XLFormSectionDescriptor>>;

    [[nodiscard]] static std::shared_ptr<XLFormDescriptor>
    formDescriptorWithTitle(const QString &title)
    {
        auto form = std::make_shared<XLFormDescriptor>();
        form->m_title = title;
        return form;
    }

    [[nodiscard]] QString title() const { return m_title; }

    /// Whether the first row has the keyboard when the form is first shown; false unless set.
    [[nodiscard]] bool assignFirstResponderOnShow() const { return m_assignFirstResponderOnShow; }
    void setAssignFirstResponderOnShow(bool assign) { m_assignFirstResponderOnShow = assign; }

    /// A section may have no rows.
    void addFormSection(std::shared_ptr<XLFormSectionDescriptor> section)
    {
        m_sections.push_back(std::move(section));
    }
    [[nodiscard]] const Sections &formSections() const { return m_sections; }

private:
    QString m_title;
    bool m_assignFirstResponderOnShow = false;
    Sections m_sections;
};
