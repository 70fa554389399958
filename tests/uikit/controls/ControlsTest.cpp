// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/controls/ControlsPage.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

using Path = QList<QPoint>; // from the middle of the button; 15 points down is its edge

using Touch = std::tuple<const char *, Path, QString, QString>;

} // namespace

class ControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void touches_data()
    {
        addCases<Touch>({
            {"slide inside", {{0, 0}, {20, 5}}, u"down* inside* up"_s, {}},
            {"slide off", {{0, 0}, {150, 0}}, u"down* exit outside off"_s, {}},
            {"and back in",
             {{0, 0}, {150, 0}, {0, 5}},
             u"down* exit outside enter* inside* up"_s,
             {}},
            {"just above", {{0, -20}}, u"down* up"_s, {}},
            {"too far above", {{0, -25}}, {}, {}},
            {"at the edge to the neighbour", {{0, 12}}, u"down* up"_s, {}},
            {"on the neighbour", {{0, 19}}, {}, u"down* up"_s},
        });
    }

    void touches()
    {
        const auto &[name, path, events, neighbour] = currentCase<Touch>();
        for (const bool mouse : {false, true}) {
            ControlsPage page;
            EventLog log(page.button);
            EventLog link(page.link);
            QTest::QTouchEventSequence finger =
                QTest::touchEvent(&page.window, Finger::screen(), false);
            for (const QPoint &step : path) {
                const bool first = &step == &path.first();
                const QPoint at = page.centre(page.named(u"button"_s)) + step;
                if (mouse) {
                    first ? QTest::mousePress(&page.window, Qt::LeftButton, {}, at)
                          : QTest::mouseMove(&page.window, at);
                } else {
                    (first ? finger.press(0, at) : finger.move(0, at)).commit();
                }
                QSignalSpy frame(&page.window, &QQuickWindow::frameSwapped);
                page.window.update();
                QVERIFY(frame.wait(TestRunner::patience)); // which moves are delivered with
            }
            const QPoint end = page.centre(page.named(u"button"_s)) + path.last();
            if (mouse) {
                QTest::mouseRelease(&page.window, Qt::LeftButton, {}, end);
            } else {
                finger.release(0, end).commit();
            }
            QCOMPARE(log.take(), events);
            QCOMPARE(link.take(), neighbour);
        }
    }

    void interruptedTouchesAreCancelled()
    {
        void (*const interruptions[])(ControlsPage &) = {
            [](ControlsPage &page) { page.named(u"page"_s)->setEnabled(false); },
            [](ControlsPage &page) { page.named(u"page"_s)->setVisible(false); },
            [](ControlsPage &page) {
                QTouchEvent cancel(QEvent::TouchCancel, Finger::screen());
                QCoreApplication::sendEvent(&page.window, &cancel);
            },
        };
        for (const auto interrupt : interruptions) {
            ControlsPage page;
            EventLog log(page.button);
            Finger finger(page.window, page.centre(page.named(u"button"_s)));
            interrupt(page);
            finger.lift();
            QCOMPARE(log.take(), u"down* cancel"_s);
        }
    }

    void coloursFollowTheStyle()
    {
        ControlsPage page;
        const auto pixels = [&page]() -> QString { // of the background, and a field with its border
            const QImage image = page.grab();
            const auto at = [&](QPoint point) {
                return image.pixelColor(point * page.window.devicePixelRatio()).name();
            };
            return at({300, 500}) + at({200, 134}) + at({200, 116});
        };
        QCOMPARE(pixels(), u"#f2f2f7#ffffff#bdbdc2"_s);
        page.application.traits().setOverride(DesktopAppearance{UIUserInterfaceStyle::Dark});
        QCOMPARE(pixels(), u"#000000#1c1c1e#323235"_s);
    }

    void picturesAreCrispAndTinted()
    {
        QVERIFY(UIImage::imageNamed(u"nothing of that name"_s).name().isEmpty());
        ControlsPage page;
        const QImage image = page.grab();
        const double ratio = page.window.devicePixelRatio();
        // The left half of the picture is filled; its edge is sharp in device pixels.
        const auto pixels = [&](int x) -> QString {
            const int edge = static_cast<int>(x * ratio);
            const int y = static_cast<int>(270 * ratio);
            return image.pixelColor(edge - 1, y).name() + image.pixelColor(edge, y).name();
        };
        QCOMPARE(pixels(60), u"#ff0000#f2f2f7"_s);
        QCOMPARE(pixels(160), u"#79f97b#f2f2f7"_s); // half as strong
    }

    void nothingTurnsThatIsNotSeen()
    {
        ControlsPage page;
        const QQuickItem *spinner = page.named(u"spinner"_s);
        const auto turns = [spinner] {
            return std::ranges::any_of(spinner->children(), [](const QObject *child) {
                return child->property("running").toBool();
            });
        };
        QVERIFY(!spinner->isVisible() && !turns());
        page.spinner.startAnimating();
        QVERIFY(spinner->isVisible() && turns());
        page.named(u"page"_s)->setVisible(false);
        QVERIFY(!turns());
    }
};

WZT_TEST(ControlsTest)
#include "ControlsTest.moc"
