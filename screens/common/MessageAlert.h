// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/NSUInteger.h"
#include "platform/uikit/alerts/UIAlertAction.h"

#include <QString>
#include <QStringView>

#include <span>

class UIViewController;

/// Presents, from `screen`, an alert with the one action "Dismiss". `dismissed` runs when that
/// action has taken the alert away.
void presentAlert(UIViewController &screen, const QString &title, const QString &message,
                  UIAlertAction::Handler dismissed = {});

/// The title of an alert that reports an outcome: "Error" or "Great!".
enum class MessageKind { Error, Success };

/// A screen's message for one status code of an operation.
struct Message {
    NSUInteger code;
    MessageKind kind;
    QStringView text;
};

/// Presents `text`, from `screen`, in an alert titled by `kind`.
void presentMessage(UIViewController &screen, MessageKind kind, const QString &text);
/// Presents the row of `messages` for `code`; nothing if there is none.
void presentMessage(UIViewController &screen, std::span<const Message> messages, NSUInteger code);

/// The message alerts of Home, Login and Account; `Screen` is the screen's own class.
template <typename Screen>
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
