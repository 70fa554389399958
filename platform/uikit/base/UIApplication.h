// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/Traits.h"
#include "platform/uikit/base/Host.h"
#include "platform/uikit/base/UIResponder.h"

#include <QPointer>

/// The application: its host, its traits and its first responder. There is one at
/// a time, made before any screen and destroyed after all of them.
class UIApplication : public QObject {
    Q_OBJECT

public:
    /// `host` outlives the application.
    explicit UIApplication(Host &host);
    ~UIApplication() override;

    /// The one application; null before it is made and after its end.
    [[nodiscard]] static UIApplication *sharedApplication();

    [[nodiscard]] Host &host() const { return m_host; }
    [[nodiscard]] Traits &traits() { return m_traits; }

    [[nodiscard]] UIResponder *firstResponder() const { return m_firstResponder; }

    /// Whether an application is registered for the scheme of `url`.
    [[nodiscard]] bool canOpenURL(const QString &url) const;
    /// Hands `url` over, character for character; nothing is reported back.
    void openURL(const QString &url);

private:
    friend class UIResponder;

    Host &m_host;
    Traits m_traits{DesktopAppearance{}};
    QPointer<UIResponder> m_firstResponder;
};
