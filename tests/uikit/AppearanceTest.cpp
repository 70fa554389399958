// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIColor.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"

#include <QSignalSpy>
#include <QTest>

/// Colours, and the traits that they and everything drawn follow.
class AppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colorsKeepComponentsAndClampOnlyWhenDrawn()
    {
        const UIColor unclamped = UIColor::colorWithRed(-0.094, 0.306, 1.5, 1);
        QCOMPARE(unclamped.components(), (std::vector{-0.094, 0.306, 1.5, 1.0}));
        QCOMPARE(unclamped.drawn(false).red(), 0);
        QCOMPARE(unclamped.drawn(false).blue(), 255);
        QCOMPARE(UIColor::colorWithWhite(0.4, 0.2).components().size(), std::size_t(2));
        QVERIFY(UIColor().isNil());
        QCOMPARE(UIColor().drawn(true).alpha(), 0);
        const UIColor nested = UIColor::initWithDynamicProvider(
            [](const UITraitCollection &) { return UIColor::labelColor(); });
        QCOMPARE(nested.drawn(true), QColor(Qt::white));
        QCOMPARE(nested.drawn(false), QColor(Qt::black));
    }

    void overrideHoldsOverTheDesktop()
    {
        RecordingHost host;
        UIApplication application(host);
        UITraits &traits = application.traits();
        QSignalSpy changed(&traits, &UITraits::changed);

        traits.setDesktopAppearance({UIUserInterfaceStyle::Dark, 1.5, true});
        QVERIFY(traits.isDark() && traits.reduceMotion());
        QCOMPARE(traits.textScale(), 1.5);
        traits.setOverride(UIAppearance{UIUserInterfaceStyle::Light, 1, false});
        QVERIFY(!traits.isDark() && !traits.reduceMotion());
        traits.setDesktopAppearance({}); // seen only once the override is gone
        traits.setOverride(std::nullopt);
        QCOMPARE(traits.userInterfaceStyle(), UIUserInterfaceStyle::Unspecified);
        QCOMPARE(changed.count(), 4);
    }
};

WZT_TEST(AppearanceTest)
#include "AppearanceTest.moc"
