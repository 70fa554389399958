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

/// The appearance by the settings of the desktop portal. Reads them asynchronously, at the start
/// and whenever a portal appears, and follows their changes; keeps the last values without a
/// portal. Interface: the desktop portal's documentation, org.freedesktop.portal.Settings.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    /// `changed` is called after the appearance may have changed.
    DesktopSettings(const QDBusConnection &bus, std::function<void()> changed);

    [[nodiscard]] DesktopAppearance appearance() const;

    /// The values of the keys that this class follows.
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
