// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/HapticFeedback.h"

#include <QDBusConnection>
#include <QDBusMessage>

using namespace Qt::StringLiterals;

void triggerButtonFeedback(const QDBusConnection &bus, const QString &applicationId)
{
    constexpr int durationOfTheEvent = -1;
    QDBusMessage message =
        QDBusMessage::createMethodCall(u"org.sigxcpu.Feedback"_s, u"/org/sigxcpu/Feedback"_s,
                                       u"org.sigxcpu.Feedback"_s, u"TriggerFeedback"_s);
    message << applicationId << u"button-pressed"_s << QVariantMap() << durationOfTheEvent;
    message.setAutoStartService(false);
    bus.send(message);
}
