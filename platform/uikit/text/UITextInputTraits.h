// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <qnamespace.h>

enum class UIKeyboardType { Default, ASCIICapable, EmailAddress };
enum class UITextAutocapitalizationType { None, Sentences };
enum class UITextAutocorrectionType { Default, No, Yes };
enum class UITextContentType { Unspecified, Name, EmailAddress, Password, NewPassword };

/// What a text field asks of the keyboard, on screen or not.
struct UITextInputTraits {
    UIKeyboardType keyboardType = UIKeyboardType::Default;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationType::Sentences;
    UITextAutocorrectionType autocorrectionType = UITextAutocorrectionType::Default;
    UITextContentType textContentType = UITextContentType::Unspecified;
    bool secureTextEntry = false;

    /// The same, as the input method is told it.
    [[nodiscard]] Qt::InputMethodHints inputMethodHints() const;

    bool operator==(const UITextInputTraits &) const = default;
};
