// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/FieldsAlert.h"

#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"

using namespace Qt::StringLiterals;

void presentFieldsAlert(UIViewController &screen, const QString &title,
                        std::span<const AlertField> fields, const QString &actionTitle,
                        std::function<void(const UIAlertController &)> handler)
{
    const auto alert = make<UIAlertController>(title, QString());
    for (const AlertField &row : fields) {
        alert->addTextFieldWithConfigurationHandler([&row](UITextField &field) {
            field.setPlaceholder(row.placeholder);
            field.setAccessibilityLabel(row.name);
            field.setInputTraits(row.traits);
            field.setBorderStyle(UITextField::BorderStyle::RoundedRect);
        });
    }
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel);
    // The alert owns its actions: a strong reference from one of them would never end.
    alert->addAction(actionTitle, UIAlertAction::Style::Default,
                     [handler = std::move(handler), alert = alert.get()] { handler(*alert); });
    screen.presentViewController(alert, true);
}
