// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/MessageAlert.h"

#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void presentAlert(UIViewController &screen, const QString &title, const QString &message,
                  UIAlertAction::Handler dismissed)
{
    auto alert = make<UIAlertController>(title, message);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel, std::move(dismissed));
    screen.presentViewController(std::move(alert), true);
}

void presentMessage(UIViewController &screen, MessageKind kind, const QString &text)
{
    presentAlert(screen, kind == MessageKind::Error ? u"Error"_s : u"Great!"_s, text);
}

void presentMessage(UIViewController &screen, std::span<const Message> messages, NSUInteger code)
{
    const auto found =
        std::find_if(messages.begin(), messages.end(),
                     [code](const Message &message) { return message.code == code; });
    if (found != messages.end()) {
        presentMessage(screen, found->kind, found->text.toString());
    }
}
