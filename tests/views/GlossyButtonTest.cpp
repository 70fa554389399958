// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIApplication.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"
#include "views/PressedColor.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTGlossyButton.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Components = std::vector<double>;

const UIColor blue = UIColor::colorWithRed(0.106, 0.506, 0.906, 1);

// A dynamic colour that is another one each time it is looked at.
UIColor flickering(const UIColor &first, const UIColor &second)
{
    return UIColor::initWithDynamicProvider(
        [first, second, looks = 0](const auto &) mutable { return looks++ ? second : first; });
}

bool isNear(const Components &some, const Components &others)
{
    return std::ranges::equal(some, others,
                              [](double a, double b) { return std::abs(a - b) < 1e-9; });
}

} // namespace

/// The button's colours, touches and shine.
class GlossyButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pressed_data()
    {
        QTest::addColumn<UIColor>("color");
        QTest::addColumn<Components>("expected");
        const auto row = [](const char *name, const UIColor &color, const Components &expected) {
            QTest::newRow(name) << color << expected;
        };
        row("below zero", blue, {-0.094, 0.306, 0.706, 1});
        row("see-through", UIColor::colorWithRed(1, 0.5, 0.2, 0.3), {0.8, 0.3, 0, 0.3});
        row("white", UIColor::whiteColor(), {0.8, 0.8, 0.8, 1});
        row("grey below zero", UIColor::colorWithWhite(0.1, 0.5), {-0.1, -0.1, -0.1, 0.5});
        row("black", UIColor::blackColor(), {0.2, 1});
        row("black of three channels", UIColor::colorWithRed(0, 0, 0, 0.5), {0.2, 0.5});
        row("no channels but a white",
            flickering(UIColor::blackColor(), UIColor::colorWithWhite(0.7, 0.4)), {0.5, 0.4});
        row("the alpha read last", flickering(blue, UIColor::colorWithRed(1, 0, 0, 0.25)),
            {-0.094, 0.306, 0.706, 0.25});
        row("four components", UIColor::colorWithCGColor({0.5, 0.1, 0, 0.4}),
            {0.3, -0.1, -0.2, 0.4});
        row("two components", UIColor::colorWithCGColor({0.7, 0.4}), {0.5, 0.5, 0.5, 0.4});
        row("five components", UIColor::colorWithCGColor({0.1, 0.2, 0.3, 0.4, 1}), {});
        row("no colour", UIColor(), {});
    }

    void pressed()
    {
        QFETCH(const UIColor, color);
        QFETCH(const Components, expected);
        RecordingHost host;
        const UIApplication application(host);
        QVERIFY(isNear(pressedColor(color).components(), expected));
    }

    void hues()
    {
        RecordingHost host;
        const UIApplication application(host);
        for (const Components &rgb : {Components{1, 0.5, 0, 1},
                                      {0.2, 0.9, 0.4, 0.5},
                                      {0.1, 0.2, 0.8, 1},
                                      {0.8, 0.1, 0.7, 1},
                                      {0.3, 0.3, 0.3, 1}}) {
            const auto hsb = UIColor::colorWithRed(rgb[0], rgb[1], rgb[2], rgb[3]).getHue();
            QVERIFY(
                isNear(UIColor::colorWithHue(hsb->hue, hsb->saturation, hsb->brightness, hsb->alpha)
                           .components(),
                       rgb));
        }
    }

    void touches_data()
    {
        // What a finger does: down, out, in again, up, cancelled by the system.
        QTest::addColumn<QString>("touches");
        QTest::addColumn<bool>("leftPressed");
        QTest::addColumn<int>("actions");
        const auto row = [](const char *name, const char16_t *touches, bool pressed, int actions) {
            QTest::newRow(name) << QString::fromUtf16(touches) << pressed << actions;
        };
        row("a finger down", u"d", true, 0);
        row("a tap", u"du", false, 1);
        row("out", u"do", false, 0);
        row("out and in", u"doi", true, 0);
        row("out and in and up", u"doiu", false, 1);
        row("up outside", u"dou", false, 0);
        row("cancelled", u"dc", true, 0);
        row("cancelled, then a tap", u"dcdu", false, 1);
        row("ended outside unseen", u"d!", true, 0);
    }

    void touches()
    {
        QFETCH(const QString, touches);
        RecordingHost host;
        const UIApplication application(host);
        WZTGlossyButton button(QRectF(), blue);
        const auto act = [](QChar touch, UIControl &control, bool &inside) {
            if (touch == u'd')
                control.beginTracking();
            if (touch == u'o' || touch == u'i')
                control.continueTracking(inside = touch == u'i');
            if (touch == u'u')
                control.endTracking(inside);
            if (touch == u'!')
                control.endTracking(false);
            if (touch == u'c')
                control.cancelTracking();
        };
        struct Listener : QObject {
            void pressed() { ++count; }
            int count = 0;
        } listener;
        button.addTarget(&listener, &Listener::pressed, UIControlEvent::TouchUpInside);
        bool inside = true;
        for (const QChar touch : touches)
            act(touch, button, inside);
        QTEST(button.backgroundColor() == pressedColor(blue), "leftPressed");
        QTEST(listener.count, "actions");
        button.setButtonColor(UIColor::redColor());
        QVERIFY2(button.backgroundColor() == UIColor::redColor(), "even while pressed");
    }

    void theShineKeepsTheSizeThatTheButtonWasMadeWith()
    {
        RecordingHost host;
        const UIApplication application(host);
        const WZTGlossyButton made(QRectF(5, 7, 200, 50), blue);
        const CALayer layer = made.layer();
        QCOMPARE(layer.cornerRadius, 8);
        QCOMPARE(layer.borderWidth, 2);
        QVERIFY(layer.masksToBounds);
        QVERIFY(layer.borderColor == UIColor::colorWithWhite(0.4, 0.2));
        QCOMPARE(layer.sublayers.size(), std::size_t(1));
        QCOMPARE(layer.sublayers[0].frame, QRectF(0, 0, 200, 50));
        QCOMPARE(layer.sublayers[0].locations, Components({0, 0.5, 0.5, 0.8, 1}));
        const Components whites[] = {{1, 0.4}, {1, 0.2}, {0.75, 0.2}, {0.4, 0.2}, {1, 0.4}};
        for (std::size_t i = 0; i < 5; ++i)
            QCOMPARE(layer.sublayers[0].colors[i].components(), whites[i]);

        WZTButtonTableViewCell cell(UITableViewCellStyle::Default, u"button"_s);
        QVERIFY(cell.button()->layer().sublayers[0].frame.isEmpty());
        QVERIFY(cell.button()->buttonColor() == blue);
        QCOMPARE(cell.button()->titleFont().pointSize(), 24);
        QCOMPARE(cell.button()->contentEdgeInsets(), (UIEdgeInsets{8, 0, 8, 0}));
    }
};

WZT_TEST(GlossyButtonTest)
#include "GlossyButtonTest.moc"
