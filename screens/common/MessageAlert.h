// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/NSUInteger.h"

#include <QString>
#include <QStringView>

#include <span>

class UIViewController;

/// The title of an alert that reports an outcome.
enum class MessageKind { Error, Success };

/// What a screen tells its user for one status code of the operation that it called.
struct Message {
    NSUInteger code;
    MessageKind kind;
    QStringView text;
};

/// Presents, from `screen`, the alert that reports an outcome: titled "Error" or "Great!", with the
/// one action "Dismiss".
void presentMessage(UIViewController &screen, MessageKind kind, const QString &text);
/// The same with the row of `messages` for `code`; nothing for a code that nothing is told about.
void presentMessage(UIViewController &screen, std::span<const Message> messages, NSUInteger code);

/// What every screen can tell its user; `Screen` is the screen's own class.
template <class Screen>
class MessageAlerts {
public:
    /// An alert titled "Error".
    void displayErrorMessage(const QString &message)
    {
        presentMessage(*static_cast<Screen *>(this), MessageKind::Error, message);
    }
    /// An alert titled "Great!".
    void displaySuccessMessage(const QString &message)
    {
        presentMessage(*static_cast<Screen *>(this), MessageKind::Success, message);
    }

private:
    friend Screen;
    MessageAlerts() = default;
};
