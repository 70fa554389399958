// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

class QDBusMessage;
class QDBusPendingCallWatcher;

/// The appearance that the desktop portal's settings tell, live. Read without waiting, at the start
/// and whenever a portal appears; what was read stays while the portal is away.
/// Interface: the desktop portal's documentation, org.freedesktop.portal.Settings.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    /// `changed` is called when the appearance may be another one.
    DesktopSettings(const QDBusConnection &bus, std::function<void()> changed);

    [[nodiscard]] DesktopAppearance appearance() const;

    /// The keys this class follows, as the portal tells them.
    struct Values {
        UIUserInterfaceStyle style = UIUserInterfaceStyle::Unspecified;
        double textScale = 1.0;
        bool animations = true;
        bool reducedMotion = false;
    };

private Q_SLOTS:
    void settingChanged(const QDBusMessage &message);

private:
    void readAll();
    void readAllFinished(QDBusPendingCallWatcher *watcher);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_portal;
    std::function<void()> m_changed;
    Values m_values;
};
