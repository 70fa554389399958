// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/UITextInputTraits.h"

#include <array>

namespace {

struct Row {
    bool (*applies)(const UITextInputTraits &);
    Qt::InputMethodHints hints;
};

constexpr std::array rows{
    Row{[](const auto &t) { return t.keyboardType == UIKeyboardType::ASCIICapable; },
        Qt::ImhPreferLatin},
    Row{[](const auto &t) {
            return t.keyboardType == UIKeyboardType::EmailAddress
                || t.textContentType == UITextContentType::EmailAddress;
        },
        Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText},
    Row{[](const auto &t) {
            return t.autocapitalizationType == UITextAutocapitalizationType::None;
        },
        Qt::ImhNoAutoUppercase},
    Row{[](const auto &t) { return t.autocorrectionType == UITextAutocorrectionType::No; },
        Qt::ImhNoPredictiveText},
    Row{[](const auto &t) { return t.secureTextEntry; },
        Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText
            | Qt::ImhNoAutoUppercase},
};

} // namespace

Qt::InputMethodHints UITextInputTraits::inputMethodHints() const
{
    Qt::InputMethodHints hints = Qt::ImhNone;
    for (const Row &row : rows) {
        if (row.applies(*this)) {
            hints |= row.hints;
        }
    }
    return hints;
}
