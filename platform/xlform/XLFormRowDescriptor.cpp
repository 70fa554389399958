// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/xlform/XLFormRowDescriptor.h"

XLFormRowDescriptor::XLFormRowDescriptor(const QString &tag, XLFormRowDescriptorType rowType,
                                         const QString &title)
    : m_tag(tag), m_rowType(rowType), m_title(title)
{
}

std::shared_ptr<XLFormRowDescriptor>
XLFormRowDescriptor::formRowDescriptorWithTag(const QString &tag, XLFormRowDescriptorType rowType,
                                              const QString &title)
{
    return std::shared_ptr<XLFormRowDescriptor>(new XLFormRowDescriptor(tag, rowType, title));
}

void XLFormRowDescriptor::setValue(const std::optional<QString> &value)
{
    const auto entered = value && value->isEmpty() ? std::nullopt : value;
    if (m_value == entered) {
        return;
    }
    m_value = entered;
    Q_EMIT valueChanged();
}
