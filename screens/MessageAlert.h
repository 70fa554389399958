// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSTypes.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <span>

class UIAlertController;

/// The title of an alert that reports an outcome.
enum class MessageKind { Error, Success };

/// What a screen tells its user for one status code of the operation that it called.
struct Message {
    NSUInteger code;
    MessageKind kind;
    QStringView text;
};

/// The alert that reports an outcome: titled "Error" or "Great!", with the one action "Dismiss".
[[nodiscard]] std::shared_ptr<UIAlertController> messageAlert(MessageKind kind,
                                                              const QString &text);

/// The row of `messages` for `code`; null for a code that nothing is told about.
[[nodiscard]] const Message *messageForCode(std::span<const Message> messages, NSUInteger code);
