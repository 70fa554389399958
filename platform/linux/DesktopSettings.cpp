// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopSettings.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Values = DesktopSettings::Values;
using Groups = QMap<QString, QVariantMap>;

constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto portalInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearanceGroup = "org.freedesktop.appearance"_L1;
constexpr auto desktopGroup = "org.gnome.desktop.interface"_L1;

constexpr double smallestTextScale = 0.5;
constexpr double largestTextScale = 3.0;

void setColorScheme(Values &values, const QVariant &value)
{
    constexpr std::array known{UIUserInterfaceStyle::Unspecified, UIUserInterfaceStyle::Dark,
                               UIUserInterfaceStyle::Light};
    const uint index = value.toUInt();
    values.style = index < known.size() ? known[index] : UIUserInterfaceStyle::Unspecified;
}

void setReducedMotion(Values &values, const QVariant &value)
{
    values.reducedMotion = value.toUInt() == 1;
}

void setTextScale(Values &values, const QVariant &value)
{
    if (std::isfinite(value.toDouble())) {
        values.textScale = std::clamp(value.toDouble(), smallestTextScale, largestTextScale);
    }
}

void setAnimations(Values &values, const QVariant &value)
{
    values.animations = value.toBool();
}

struct Setting {
    QLatin1StringView group;
    QLatin1StringView key;
    QMetaType::Type type;
    void (*set)(Values &, const QVariant &);
};

constexpr std::array settings{
    Setting{appearanceGroup, "color-scheme"_L1, QMetaType::UInt, setColorScheme},
    Setting{appearanceGroup, "reduced-motion"_L1, QMetaType::UInt, setReducedMotion},
    Setting{desktopGroup, "text-scaling-factor"_L1, QMetaType::Double, setTextScale},
    Setting{desktopGroup, "enable-animations"_L1, QMetaType::Bool, setAnimations},
};

// Portals wrap a value in one or more variants.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

void setValue(Values &values, const QString &group, const QString &key, const QVariant &wrapped)
{
    const QVariant value = unwrapped(wrapped);
    for (const Setting &setting : settings) {
        if (setting.group == group && setting.key == key && setting.type == value.typeId()) {
            setting.set(values, value);
        }
    }
}

} // namespace

DesktopSettings::DesktopSettings(const QDBusConnection &bus, std::function<void()> changed)
    : m_bus(bus),
      m_portal(portalService, bus, QDBusServiceWatcher::WatchForRegistration),
      m_changed(std::move(changed))
{
    // Without the signal the values would become outdated.
    if (!m_bus.connect(portalService, portalPath, portalInterface, u"SettingChanged"_s, this,
                       SLOT(settingChanged(QDBusMessage)))) {
        return;
    }
    connect(&m_portal, &QDBusServiceWatcher::serviceRegistered, this, &DesktopSettings::readAll);
    readAll();
}

DesktopAppearance DesktopSettings::appearance() const
{
    return {.style = m_values.style,
            .textScale = m_values.textScale,
            .reduceMotion = m_values.reducedMotion || !m_values.animations};
}

void DesktopSettings::settingChanged(const QDBusMessage &message)
{
    if (message.signature() != "ssv"_L1) {
        return;
    }
    const QVariantList arguments = message.arguments();
    setValue(m_values, arguments.at(0).toString(), arguments.at(1).toString(), arguments.at(2));
    m_changed();
}

void DesktopSettings::readAll()
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, u"ReadAll"_s);
    message << QStringList{appearanceGroup, desktopGroup};
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopSettings::readAllFinished);
}

void DesktopSettings::readAllFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusMessage reply = watcher->reply();
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{sa{sv}}"_L1) {
        return;
    }
    const auto groups = qdbus_cast<Groups>(reply.arguments().constFirst());
    m_values = {};
    for (const Setting &setting : settings) {
        setValue(m_values, setting.group, setting.key,
                 groups.value(setting.group).value(setting.key));
    }
    m_changed();
}
