// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/ControlsPage.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

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
            {"tap", {{0, 0}}, u"down* up"_s, {}},
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
            QQuickView *window = &page.fixture.window;
            QTest::QTouchEventSequence finger =
                QTest::touchEvent(window, WindowDriver::screen(), false);
            const QPoint middle = page.at("button");
            for (const QPoint &step : path) {
                const bool first = &step == &path.first();
                const QPoint at = middle + step;
                if (mouse)
                    first ? QTest::mousePress(window, Qt::LeftButton, {}, at)
                          : QTest::mouseMove(window, at);
                else
                    (first ? finger.press(0, at, window) : finger.move(0, at, window)).commit();
                QSignalSpy frame(window,
                                 &QQuickWindow::frameSwapped); // which moves are delivered with
                window->update();
                QVERIFY(frame.wait());
            }
            if (mouse)
                QTest::mouseRelease(window, Qt::LeftButton, {}, middle + path.last());
            else
                finger.release(0, middle + path.last(), window).commit();
            QCOMPARE(log.take(), events);
            QCOMPARE(link.take(), neighbour);
        }
    }

    void touchesAreTakenAway()
    {
        void (*const takings[])(ControlsPage &) = {
            [](ControlsPage &page) { page.item("page")->setEnabled(false); },
            [](ControlsPage &page) { page.item("page")->setVisible(false); },
            [](ControlsPage &page) {
                QTouchEvent cancel(QEvent::TouchCancel, WindowDriver::screen());
                QCoreApplication::sendEvent(&page.fixture.window, &cancel);
            },
        };
        for (const auto take : takings) {
            ControlsPage page;
            EventLog log(page.button);
            QQuickView *window = &page.fixture.window;
            QTest::touchEvent(window, WindowDriver::screen()).press(0, page.at("button"), window);
            take(page);
            QTest::touchEvent(window, WindowDriver::screen()).release(0, page.at("button"), window);
            QCOMPARE(log.take(), u"down* cancel"_s);
            QCOMPARE(page.taps, 0);
        }
    }

    void keysPressButtons()
    {
        ControlsPage page;
        EventLog log(page.button);
        QQuickItem *button = page.item("button");
        const auto ring = [button] { return button->property("focusVisible").toBool(); };
        for (int tab = 0; tab < 3; ++tab)
            page.key(Qt::Key_Tab);
        QVERIFY(button->hasActiveFocus() && ring());
        page.key(Qt::Key_Space);
        page.key(Qt::Key_Return);
        page.key(Qt::Key_A);
        QCOMPARE(log.take(), u"down* up down* up"_s);
        page.item("page")->setEnabled(false); // an alert comes and goes
        QVERIFY(!ring());
        page.item("page")->setEnabled(true);
        QVERIFY(ring());
        page.fixture.tap(page.at("button"));
        QVERIFY(!ring());
        page.key(Qt::Key_Tab);
        QVERIFY(page.item("link")->hasActiveFocus());
        page.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(button->hasActiveFocus() && ring());
    }

    void tapsReachThePage()
    {
        const std::tuple<QPoint, int, QString> rows[] = {
            {{300, 500}, 1, {}}, // the background
            {{60, 30}, 1, {}}, // the label
            {{70, 187}, 1, u"down* up"_s}, // the button
            {{120, 78}, 0, {}}, // the field
            {{24, 78}, 0, {}}, // the blank before its text
        };
        for (const auto &[at, taps, events] : rows) {
            ControlsPage page;
            EventLog log(page.button);
            page.fixture.tap(at);
            QCOMPARE(page.taps, taps);
            QCOMPARE(log.take(), events);
            QCOMPARE(page.name.isFirstResponder(), taps == 0);
            QTest::mouseClick(&page.fixture.window, Qt::LeftButton, {}, at);
            QCOMPARE(page.taps, 2 * taps);
        }
    }

    void screenReadersFindEverything()
    {
        ControlsPage page;
        page.link.setAccessibilityLabel(u"Need help?"_s);
        page.secret.setText(u"hunter2"_s);
        page.spinner.startAnimating();
        const auto found = [&] { return WindowDriver::accessible(page.fixture.window); };
        QCOMPARE(
            found().join(u", "_s),
            u"StaticText Account Login, EditableText Name, EditableText Password, Button Login, "
            "Button Need help?, ProgressBar Loading"_s);
        EventLog log(page.button);
        QAccessibleInterface *button = QAccessible::queryAccessibleInterface(page.item("button"));
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(log.take(), u"down* up"_s);

        page.label.setText({});
        page.spinner.stopAnimating();
        QCOMPARE(found().size(), 4);
        page.item("page")->setEnabled(false); // covered by an alert
        QCOMPARE(found(), QStringList());
    }

    void coloursFollowTheStyle()
    {
        ControlsPage page;
        const auto pixel = [&page](QPoint at) {
            return page.fixture.grab()
                .pixelColor(at * page.fixture.window.devicePixelRatio())
                .name();
        };
        const QPoint field(200, 134);
        QCOMPARE(pixel({300, 500}), u"#f2f2f7"_s);
        QCOMPARE(pixel(field), u"#ffffff"_s);
        page.fixture.application.traits().setOverride(UIAppearance{UIUserInterfaceStyle::Dark});
        QCOMPARE(pixel({300, 500}), u"#000000"_s);
        QCOMPARE(pixel(field), u"#1c1c1e"_s);
        page.view.setBackgroundColor(UIColor());
        page.name.setLayer({.borderWidth = 4, .borderColor = UIColor::colorWithRed(1, 0, 0, 1)});
        QCOMPARE(pixel({120, 62}), u"#ff0000"_s);
    }

    void picturesAreCrispAndTinted()
    {
        QVERIFY(UIImage::imageNamed(u"nothing of that name"_s).name().isEmpty());
        ControlsPage page;
        // The left half of the picture is red; its edge is sharp in device pixels.
        const QImage image = page.fixture.grab();
        const double ratio = page.fixture.window.devicePixelRatio();
        const int edge = int(60 * ratio);
        const int y = int(270 * ratio);
        QCOMPARE(image.pixelColor(edge - 1, y).name(), u"#ff0000"_s);
        QCOMPARE(image.pixelColor(edge, y).name(), u"#f2f2f7"_s);

        page.fixture.showSource(
            "import UIKit; UIImagePicture { name: 'testMark'; tint: '#8000ff00' }", {});
        const QImage tinted = page.fixture.grab(); // fitted into the window, and half as strong
        QCOMPARE(tinted.pixelColor(int(10 * ratio), tinted.height() / 2).name(), u"#7fff7f"_s);
        QCOMPARE(tinted.pixelColor(int(10 * ratio), int(10 * ratio)).name(), u"#ffffff"_s);
    }

    void labelsAndSpinnersTakeNothingWhenIdle()
    {
        ControlsPage page;
        const double height = page.item("label")->height();
        page.fixture.application.traits().setOverride(UIAppearance{.textScale = 2});
        QVERIFY(page.item("label")->height() > 1.9 * height);
        page.label.setText({});
        QCOMPARE(page.item("label")->height(), 0.0);

        QQuickItem *spinner = page.item("spinner");
        const auto running = [spinner] {
            for (QObject *child : spinner->children()) {
                if (child->property("running").toBool())
                    return true;
            }
            return false;
        };
        QVERIFY(!spinner->isVisible() && !running());
        page.spinner.startAnimating();
        QVERIFY(spinner->isVisible() && running());
        page.item("page")->setVisible(false);
        QVERIFY(!running());
    }
};

WZT_TEST(ControlsTest)
#include "ControlsTest.moc"
