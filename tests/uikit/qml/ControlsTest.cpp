// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/ControlsPage.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What a screen reader finds: "role name [state...]" of everything below `of`, one a line.
void describe(QAccessibleInterface *of, QStringList &lines)
{
    for (int index = 0; index < of->childCount(); ++index) {
        QAccessibleInterface *child = of->child(index);
        const auto state = child->state();
        QString line =
            QVariant::fromValue(child->role()).toString() + u' ' + child->text(QAccessible::Name);
        for (const auto &[is, word] :
             {std::pair(state.focused, " focused"), std::pair(state.passwordEdit, " password"),
              std::pair(state.editable, " editable")})
            line += QLatin1String(is ? word : "");
        if (!state.invisible)
            lines.append(line);
        describe(child, lines);
    }
}

} // namespace

class ControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void touches_data();
    void touches();
    void touchesAreTakenAway_data();
    void touchesAreTakenAway();
    void keysPressButtons();
    void tapsReachThePage_data();
    void tapsReachThePage();
    void screenReadersFindEverything();
    void coloursFollowTheStyle();
    void picturesAreCrispAndTinted();
    void labelsAndSpinnersTakeNothingWhenIdle();
};

void ControlsTest::touches_data()
{
    using Path = QList<QPoint>; // from the middle of the button; 15 points down is its edge
    const QList<std::tuple<const char *, Path, const char *, const char *>> rows{
        {"tap", {{0, 0}}, "down* up", ""},
        {"slide inside", {{0, 0}, {20, 5}}, "down* inside* up", ""},
        {"slide off", {{0, 0}, {150, 0}}, "down* exit outside off", ""},
        {"slide back in", {{0, 0}, {150, 0}, {0, 5}}, "down* exit outside enter* inside* up", ""},
        {"just above", {{0, -20}}, "down* up", ""},
        {"too far above", {{0, -25}}, "", ""},
        {"at the edge to the neighbour", {{0, 12}}, "down* up", ""},
        {"on the neighbour", {{0, 19}}, "", "down* up"},
    };
    QTest::addColumn<bool>("mouse");
    QTest::addColumn<Path>("path");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("neighbour");
    for (const bool mouse : {false, true}) {
        for (const auto &[name, path, events, neighbour] : rows)
            QTest::addRow("%s: %s", mouse ? "mouse" : "finger", name)
                << mouse << path << QString::fromLatin1(events) << QString::fromLatin1(neighbour);
    }
}

void ControlsTest::touches()
{
    QFETCH(const bool, mouse);
    QFETCH(const QList<QPoint>, path);
    ControlsPage page;
    EventLog log(page.button);
    EventLog neighbour(page.link);
    QQuickView *window = &page.fixture.window;
    QPointingDevice *screen = page.fixture.screen.get();
    const QPoint middle = page.at("button");
    for (qsizetype step = 0; step < path.size(); ++step) {
        const QPoint at = middle + path[step];
        if (mouse && step == 0)
            QTest::mousePress(window, Qt::LeftButton, {}, at);
        else if (mouse)
            QTest::mouseMove(window, at);
        else if (step == 0)
            QTest::touchEvent(window, screen).press(0, at, window);
        else
            QTest::touchEvent(window, screen).move(0, at, window);
        QSignalSpy frame(window, &QQuickWindow::frameSwapped); // which moves are delivered with
        window->update();
        QVERIFY(frame.wait());
    }
    if (mouse)
        QTest::mouseRelease(window, Qt::LeftButton, {}, middle + path.last());
    else
        QTest::touchEvent(window, screen).release(0, middle + path.last(), window);
    QTEST(log.take(), "events");
    QTEST(neighbour.take(), "neighbour");
}

void ControlsTest::touchesAreTakenAway_data()
{
    using Taking = std::function<void(ControlsPage &)>;
    QTest::addColumn<Taking>("take");
    QTest::newRow("covered") << Taking([](ControlsPage &p) { p.item("page")->setEnabled(false); });
    QTest::newRow("hidden") << Taking([](ControlsPage &p) { p.item("page")->setVisible(false); });
    QTest::newRow("system") << Taking([](ControlsPage &page) {
        QTouchEvent cancel(QEvent::TouchCancel, page.fixture.screen.get());
        QCoreApplication::sendEvent(&page.fixture.window, &cancel);
    });
}

void ControlsTest::touchesAreTakenAway()
{
    using Taking = std::function<void(ControlsPage &)>;
    QFETCH(const Taking, take);
    ControlsPage page;
    EventLog log(page.button);
    QQuickView *window = &page.fixture.window;
    QPointingDevice *screen = page.fixture.screen.get();
    QTest::touchEvent(window, screen).press(0, page.at("button"), window);
    take(page);
    QTest::touchEvent(window, screen).release(0, page.at("button"), window);
    QCOMPARE(log.take(), u"down* cancel"_s);
    QCOMPARE(page.taps, 0);
}

void ControlsTest::keysPressButtons()
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

void ControlsTest::tapsReachThePage_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<int>("taps");
    QTest::addColumn<QString>("events");
    QTest::newRow("background") << QPoint(300, 500) << 1 << "";
    QTest::newRow("label") << QPoint(60, 30) << 1 << "";
    QTest::newRow("button") << QPoint(70, 187) << 1 << "down* up";
    QTest::newRow("field") << QPoint(120, 78) << 0 << "";
    QTest::newRow("the blank before the text") << QPoint(24, 78) << 0 << "";
}

void ControlsTest::tapsReachThePage()
{
    QFETCH(const QPoint, at);
    ControlsPage page;
    EventLog log(page.button);
    page.fixture.tap(at);
    QTEST(page.taps, "taps");
    QTEST(log.take(), "events");
    QCOMPARE(page.name.isFirstResponder(), page.taps == 0);
    QTest::mouseClick(&page.fixture.window, Qt::LeftButton, {}, at);
    QFETCH(const int, taps);
    QCOMPARE(page.taps, 2 * taps);
}

void ControlsTest::screenReadersFindEverything()
{
    QAccessible::setActive(true);
    ControlsPage page;
    page.link.setAccessibilityLabel(u"Need help?"_s);
    page.secret.setText(u"hunter2"_s);
    page.spinner.startAnimating();
    page.name.becomeFirstResponder();
    const auto found = [&page] {
        QStringList lines;
        describe(QAccessible::queryAccessibleInterface(&page.fixture.window), lines);
        return lines;
    };
    QCOMPARE(found(),
             QStringList({u"StaticText Account Login"_s, u"EditableText Name focused editable"_s,
                          u"EditableText Password password editable"_s, u"Button Login"_s,
                          u"Button Need help?"_s, u"ProgressBar Loading"_s}));
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

void ControlsTest::coloursFollowTheStyle()
{
    ControlsPage page;
    const auto pixel = [&page](QPoint at) {
        return page.fixture.grab().pixelColor(at * page.fixture.window.devicePixelRatio()).name();
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

void ControlsTest::picturesAreCrispAndTinted()
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

    page.fixture.showSource("import UIKit; UIImagePicture { name: 'testMark'; tint: '#8000ff00' }",
                            {});
    const QImage tinted = page.fixture.grab(); // fitted into the window, and half as strong
    QCOMPARE(tinted.pixelColor(int(10 * ratio), tinted.height() / 2).name(), u"#7fff7f"_s);
    QCOMPARE(tinted.pixelColor(int(10 * ratio), int(10 * ratio)).name(), u"#ffffff"_s);
}

void ControlsTest::labelsAndSpinnersTakeNothingWhenIdle()
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

WZT_TEST(ControlsTest)
#include "ControlsTest.moc"
