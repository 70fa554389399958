// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/RecordingHost.h"
#include "harness/TestRunner.h"
#include "platform/uikit/appearance/Theme.h"
#include "platform/uikit/appearance/UIColor.h"
#include "platform/uikit/base/UIApplication.h"

#include <QSignalSpy>

#include <cmath>

namespace {

// Relative luminance over `ground`, and contrast, as WCAG 2.1 defines them.
double luminance(const QColor &color, const QColor &ground)
{
    const auto channel = [alpha = color.alphaF()](float over, float under) {
        const double mixed = alpha * over + (1 - alpha) * under;
        return mixed <= 0.03928 ? mixed / 12.92 : std::pow((mixed + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF(), ground.redF())
        + 0.7152 * channel(color.greenF(), ground.greenF())
        + 0.0722 * channel(color.blueF(), ground.blueF());
}

double contrast(const QColor &text, const QColor &ground)
{
    const auto [dark, light] = std::minmax({luminance(text, ground), luminance(ground, ground)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

/// The traits that everything drawn follows, and their colours.
class AppearanceTest : public QObject {
    Q_OBJECT

    RecordingHost m_host;
    UIApplication m_application{m_host};
    Traits &m_traits = m_application.traits();

private Q_SLOTS:
    void textsStandOut()
    {
        const Theme theme;
        for (const auto style : {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark}) {
            m_traits.setOverride(DesktopAppearance{.style = style});
            const QColor row =
                UIColor::secondarySystemGroupedBackgroundColor().toQColor(m_traits.isDark());
            const QColor pressed = theme.pressedAlertColor();
            for (const QColor &ground :
                 {row, theme.backgroundColor(), theme.barColor(), theme.alertColor(), pressed}) {
                QVERIFY(contrast(theme.labelColor(), ground) >= 4.5);
                QVERIFY(contrast(theme.accentColor(), ground) >= 4.5);
                QVERIFY(ground == pressed || contrast(theme.secondaryLabelColor(), ground) >= 4.5);
            }
            // A picture, which the eye needs less for.
            QVERIFY(contrast(theme.unselectedTabColor(), theme.barColor()) >= 3);
        }
    }

    void overrideHoldsOverTheDesktop()
    {
        m_traits.setOverride(DesktopAppearance{UIUserInterfaceStyle::Light, 1, false});
        const QSignalSpy changed(&m_traits, &Traits::changed);
        m_traits.setDesktopAppearance({UIUserInterfaceStyle::Dark, 1.5, true});
        QVERIFY(!m_traits.isDark() && !m_traits.reduceMotion() && m_traits.textScale() < 1.5);
        m_traits.setOverride(std::nullopt);
        QVERIFY(m_traits.isDark() && m_traits.reduceMotion() && m_traits.textScale() > 1);
        QCOMPARE(changed.count(), 2);
    }
};

WZT_TEST(AppearanceTest)
#include "AppearanceTest.moc"
