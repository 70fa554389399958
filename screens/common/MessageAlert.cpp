// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/MessageAlert.h"

#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void presentMessage(UIViewController &screen, MessageKind kind, const QString &text)
{
    const QString title = kind == MessageKind::Error ? u"Error"_s : u"Great!"_s;
    const auto alert = make<UIAlertController>(title, text);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel);
    screen.presentViewController(alert, true);
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
