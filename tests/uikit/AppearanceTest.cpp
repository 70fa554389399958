// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIColor.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {

// Relative luminance and contrast as WCAG 2.1 defines them.
double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &text, const QColor &ground)
{
    const float alpha = text.alphaF();
    const auto mixed = [alpha](float over, float under) {
        return alpha * over + (1 - alpha) * under;
    };
    const double one = luminance(QColor::fromRgbF(mixed(text.redF(), ground.redF()),
                                                  mixed(text.greenF(), ground.greenF()),
                                                  mixed(text.blueF(), ground.blueF())));
    const double other = luminance(ground);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}

} // namespace

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

    void textsStandOut()
    {
        RecordingHost host;
        UIApplication application(host);
        UITraits &traits = application.traits();
        for (const auto style : {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark}) {
            traits.setOverride(UIAppearance{.style = style});
            const QColor row =
                UIColor::secondarySystemGroupedBackgroundColor().drawn(traits.isDark());
            const QList<QColor> pages{row, traits.backgroundColor(), traits.barColor()};
            const QList<QColor> alerts{traits.alertColor(), traits.pressedAlertColor()};
            for (const QColor &ground : pages + alerts) {
                QVERIFY(contrast(traits.labelColor(), ground) >= 4.5);
                QVERIFY(contrast(traits.accentColor(), ground) >= 4.5);
            }
            for (const QColor &ground : pages + QList{traits.alertColor()}) {
                QVERIFY(contrast(traits.secondaryLabelColor(), ground) >= 4.5);
                QVERIFY(contrast(traits.placeholderColor(), ground) >= 4.5);
            }
            // A picture, which the eye needs less for.
            QVERIFY(contrast(traits.unselectedTabColor(), traits.barColor()) >= 3);
        }
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
