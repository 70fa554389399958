// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantMap>

/// The tokens by which a desktop lets an application raise its window: XDG_ACTIVATION_TOKEN and
/// DESKTOP_STARTUP_ID in the environment, "activation-token" and "desktop-startup-id" in the
/// platform data of org.freedesktop.Application.
namespace ActivationTokens {

/// Adds entries for the tokens to the environment. Call it before any thread is started.
void prepareEnvironment();

/// The platform data with the tokens of this process.
[[nodiscard]] QVariantMap platformData();

/// Keeps the tokens of `platformData` in the environment during its lifetime. Qt reads one there
/// when a window is raised.
class Scope {
public:
    explicit Scope(const QVariantMap &platformData);
    ~Scope();
    Q_DISABLE_COPY_MOVE(Scope)
};

} // namespace ActivationTokens
