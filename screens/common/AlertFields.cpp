// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/AlertFields.h"

#include "platform/uikit/alerts/UIAlertController.h"

void addFields(UIAlertController &alert, std::span<const AlertField> fields)
{
    for (const AlertField &row : fields) {
        alert.addTextFieldWithConfigurationHandler([&row](UITextField &field) {
            field.setPlaceholder(row.placeholder);
            field.setAccessibilityLabel(row.name);
            field.setInputTraits(row.traits);
            field.setBorderStyle(UITextField::BorderStyle::RoundedRect);
        });
    }
}
