// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestProcess.h"
#include "harness/TestRunner.h"
#include "platform/linux/LinuxHost.h"
#include "platform/linux/TextScale.h"
#include "tests/linux/FakeService.h"
#include "tests/linux/OtherProcess.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto portalInterface = "org.freedesktop.portal.Settings"_L1;
const QString looks = u"org.freedesktop.appearance"_s;
const QString desktop = u"org.gnome.desktop.interface"_s;
const QString colorScheme = u"color-scheme"_s;
constexpr auto neither = UIUserInterfaceStyle::Unspecified;
constexpr auto light = UIUserInterfaceStyle::Light;
constexpr auto dark = UIUserInterfaceStyle::Dark;

QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

struct Portal : FakeService {
    explicit Portal(const SettingGroups &settings = {})
        : FakeService(u"org.freedesktop.portal.Desktop"_s, portalPath,
                      QVariant::fromValue(settings))
    {
    }
    void change(const QString &group, const QString &key, const QVariant &value) const
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(portalPath, portalInterface, u"SettingChanged"_s);
        bus.send(signal << group << key << wrapped(value));
    }
};

// A host and the appearances that it has reported, the latest first.
struct ObservedHost {
    ObservedHost()
    {
        host.observeAppearance(
            [this](const DesktopAppearance &appearance) { told.prepend(appearance); });
    }
    [[nodiscard]] DesktopAppearance last() const { return told.value(0); }
    LinuxHost host{u"example.wzt.Test"_s};
    QList<DesktopAppearance> told;
};

using Setting = std::tuple<const char *, QString, const char *, QVariant, DesktopAppearance>;

} // namespace

class AppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qDBusRegisterMetaType<SettingGroups>(); }

    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void portalSettings_data()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        addCases<Setting>({
            {"no preference", looks, "color-scheme", 0U, {}},
            {"dark, wrapped more", looks, "color-scheme", wrapped(wrapped(1U)), {.style = dark}},
            {"light", looks, "color-scheme", 2U, {.style = light}},
            {"unknown scheme", looks, "color-scheme", 3U, {}},
            {"scheme as text", looks, "color-scheme", u"1"_s, {}},
            {"key of another group", desktop, "color-scheme", 1U, {}},
            {"larger text", desktop, "text-scaling-factor", 1.25, {.textScale = 1.25}},
            {"giant text", desktop, "text-scaling-factor", 1e9, {.textScale = 3.0}},
            {"no text at all", desktop, "text-scaling-factor", 0.0, {.textScale = 0.5}},
            {"no number", desktop, "text-scaling-factor", nan, {}},
            {"animations off", desktop, "enable-animations", false, {.reduceMotion = true}},
            {"animations on", desktop, "enable-animations", true, {}},
        });
    }

    // Each value once as the initial one and once as a change.
    void portalSettings()
    {
        const auto &[name, group, keyName, value, expected] = currentCase<Setting>();
        const QString key = QString::fromLatin1(keyName);
        DesktopAppearance after = expected;
        after.reduceMotion = true;
        for (const bool live : {false, true}) {
            const Portal portal(live ? SettingGroups() : SettingGroups{{group, {{key, value}}}});
            const ObservedHost host;
            QTRY_COMPARE(portal.calls.size(), 1);
            QCOMPARE(portal.calls[0],
                     (QVariantList{portalInterface, u"ReadAll"_s, QStringList{looks, desktop}}));
            if (live) {
                portal.change(group, key, value);
            }
            // The last signal: when it has arrived, no other is pending.
            portal.change(looks, u"reduced-motion"_s, 1U);
            QTRY_COMPARE(host.last(), after);
            QList<DesktopAppearance> told{after, expected, DesktopAppearance()};
            told.erase(std::unique(told.begin(), told.end()), told.end());
            told.removeLast(); // what it begins with is told to nobody
            QCOMPARE(host.told, told);
        }
    }

    void textIsScaledOnce()
    {
        const std::tuple<double, QStringView, double, double> rows[] = {
            // text scale, platform, pixel ratio, what is left
            {1.25, u"xcb", 1.25, 1.0},      {1.25, u"xcb", 2.5, 1.0},
            {1.1, u"xcb", 105 / 96.0, 1.0}, // 105.6 DPI, which Qt cuts
            {0.9, u"xcb", 0.9, 1.0},        {2.0, u"xcb", 2.0, 1.0},
            {1.25, u"xcb", 1.0, 1.25}, // a desktop that leaves Xft.dpi alone
            {1.25, u"xcb", 2.0, 1.25},      {2.0, u"xcb", 1.0, 2.0},
            {1.25, u"wayland", 1.25, 1.25},
        };
        for (const auto &[scale, platform, ratio, left] : rows) {
            QCOMPARE(TextScale::remaining(scale, platform, ratio), left);
        }
    }

    // Qt makes the pixel ratio of QT_FONT_DPI as of Xft.dpi.
    void textIsScaledOnceUnderX()
    {
        const Portal portal(SettingGroups{
            {desktop, {{u"text-scaling-factor"_s, 1.25}, {u"enable-animations"_s, false}}}});
        TestProcess display;
        const QString hidden = u"-displayfd 1 -nolisten tcp -screen 0 800x600x24"_s;
        const QByteArray number = display.startAndRead(u"Xvfb"_s, hidden.split(u' '));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(number));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        const std::tuple<const char *, const char *, QByteArray> rows[] = {
            {"96", "1", "1.25\n"}, {"120", "1", "1\n"}, {"120", "2", "1\n"}};
        for (const auto &[dpi, factor, told] : rows) {
            environment.insert(u"QT_FONT_DPI"_s, QLatin1StringView(dpi));
            environment.insert(u"QT_SCALE_FACTOR"_s, QLatin1StringView(factor));
            QCOMPARE(runOtherProcess({u"--scale"_s}, environment), told);
        }
    }

    void portalThatComesLateAndRestarts()
    {
        const ObservedHost host;
        for (const auto &[value, style] : {std::pair(1U, dark), {2U, light}, {0U, neither}}) {
            const Portal portal(SettingGroups{{looks, {{colorScheme, value}}}});
            QTRY_COMPARE(host.last().style, style);
        }
        QCOMPARE(host.told.size(), 3);
    }

    void paletteWhenThePortalSaysNothing()
    {
        const QPalette before = QGuiApplication::palette();
        const Portal portal;
        const ObservedHost host;
        QTRY_COMPARE(portal.calls.size(), 1);
        QGuiApplication::setPalette(QPalette(Qt::white, Qt::black));
        QTRY_COMPARE(host.last().style, dark);
        portal.change(looks, colorScheme, 2U);
        QTRY_COMPARE(host.last().style, light);
        portal.change(looks, colorScheme, 0U);
        QTRY_COMPARE(host.last().style, dark);
        QGuiApplication::setPalette(before);
        QTRY_COMPARE(host.last(), DesktopAppearance());
    }
};

WZT_TEST(AppearanceTest)
#include "AppearanceTest.moc"
