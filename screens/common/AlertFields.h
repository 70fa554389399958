// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/text/UITextInputTraits.h"

#include <QString>

#include <span>

class UIAlertController;

/// A field of an alert that asks for something.
struct AlertField {
    QString placeholder;
    UITextInputTraits traits;
    /// What screen readers call the field; the placeholder unless set.
    QString name = {};
};

/// Adds the fields to `alert`, in their order, each with a rounded border.
void addFields(UIAlertController &alert, std::span<const AlertField> fields);
