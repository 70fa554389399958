// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDBusConnection;

/// Asks feedbackd on `bus` for the feedback of a pressed button in the name of `applicationId`.
/// Waits for nothing and starts nothing: without the daemon nothing happens.
/// Interface: the D-Bus documentation of feedbackd, org.sigxcpu.Feedback, and its event naming.
void triggerButtonFeedback(const QDBusConnection &bus, const QString &applicationId);
