// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/text/UITextInputTraits.h"

#include <QString>

#include <functional>
#include <span>

class UIAlertController;
class UIViewController;

/// A text field of an alert.
struct AlertField {
    QString placeholder;
    UITextInputTraits traits;
    /// The name for screen readers; the placeholder unless set.
    QString name = {};
};

/// Presents, from `screen`, an alert with `fields`, the action "Dismiss" and the action
/// `actionTitle`, which calls `handler` with the alert.
void presentFieldsAlert(UIViewController &screen, const QString &title,
                        std::span<const AlertField> fields, const QString &actionTitle,
                        std::function<void(const UIAlertController &)> handler);
