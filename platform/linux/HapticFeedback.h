// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDBusConnection;

/// Requests the feedback of a pressed button from feedbackd on `bus`, on behalf of `applicationId`.
/// Neither waits nor starts the daemon; without it nothing happens.
/// Interface: the D-Bus documentation of feedbackd, org.sigxcpu.Feedback, and its event naming.
void triggerButtonFeedback(const QDBusConnection &bus, const QString &applicationId);
