// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <qnamespace.h>

enum class UIKeyboardType { Default, ASCIICapable, EmailAddress };
enum class UITextAutocapitalizationType { None, Sentences };
enum class UITextAutocorrectionType { Default, No, Yes };
enum class UITextContentType { Unspecified, Name, EmailAddress, Password, NewPassword };

/// The keyboard that a text field asks for, on screen or not.
struct UITextInputTraits {
    UIKeyboardType keyboardType = UIKeyboardType::Default;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationType::Sentences;
    UITextAutocorrectionType autocorrectionType = UITextAutocorrectionType::Default;
    UITextContentType textContentType = UITextContentType::Unspecified;
    bool secureTextEntry = false;

    /// The same as hints for Qt's input methods.
    [[nodiscard]] Qt::InputMethodHints inputMethodHints() const;

    bool operator==(const UITextInputTraits &) const = default;
};
