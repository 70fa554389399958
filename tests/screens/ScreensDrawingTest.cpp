// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/login/WZTLoginViewController.h"
#include "tests/screens/ScreenStage.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/support/WindowDriver.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

/// What has the keyboard.
QString focused(QQuickView &view)
{
    QQuickItem *item = view.activeFocusItem();
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
    return interface                   ? interface->text(QAccessible::Name)
        : item->inherits("FocusGroup") ? u"rows"_s
                                       : QString::fromLatin1(item->metaObject()->className());
}

qsizetype rings(QQuickView &view)
{
    const QList<QQuickItem *> all = WindowDriver::items(view, u"FocusRing"_s);
    return std::ranges::count_if(all, &QQuickItem::isVisible);
}

QStringList walk(QQuickView &view, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QStringList names;
    for (QString now = focused(view); !names.contains(now); now = focused(view)) {
        names.append(now);
        QTest::keyClick(&view, key, modifiers);
    }
    return names;
}

struct Seen {
    QString name;
    QRectF rect; // that it, or its text, takes in the window
    double slope; // of what is rotated: above 0 when it falls as lines are read from the left
};

/// What is seen of `item` and below it.
void collect(QQuickItem *item, QList<Seen> &seen)
{
    const QString type = QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0);
    if (!item->isVisible() || type == u"TextCursor"_s) {
        return;
    }
    QRectF area(0, 0, item->width(), item->height());
    const double width = item->property("contentWidth").toDouble();
    if (width > 0 && width < area.width()) {
        const int alignment = item->property("effectiveHorizontalAlignment").toInt();
        const double room = area.width() - width;
        area.setLeft(alignment == Qt::AlignLeft        ? 0
                         : alignment == Qt::AlignRight ? room
                                                       : room / 2);
        area.setWidth(width);
    }
    const QPointF along = item->mapToScene({1, 0}) - item->mapToScene({0, 0});
    if (!area.isEmpty()) {
        seen.append({type + u' ' + item->property("text").toString(), item->mapRectToScene(area),
                     along.x() * along.y()});
    }
    // Where a text begins that is edited is up to its letters.
    if (type == u"TextFieldInput"_s || type == u"UITextViewView"_s) {
        return;
    }
    for (QQuickItem *child : item->childItems()) {
        collect(child, seen);
    }
}

using Wheel = std::tuple<const char *, std::size_t, QString>;

} // namespace

/// What holds for every screen.
class ScreensDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void theKeyboardComesToEverything_data() { addCases(allScreens()); }

    void theKeyboardComesToEverything()
    {
        const Screen &screen = currentCase<Screen>();
        ScreenStage stage(screen);
        QQuickView &view = stage.window->view();
        QCOMPARE(rings(view), 0);
        const QStringList forth = walk(view, Qt::Key_Tab);
        QCOMPARE(forth.join(u", "_s), screen.walk);
        QStringList back = walk(view, Qt::Key_Backtab, Qt::ShiftModifier);
        back.append(back.takeFirst());
        std::ranges::reverse(back);
        QCOMPARE(back, forth);
        for (int i = 0; i < forth.size(); ++i) {
            const bool edits =
                view.activeFocusItem()->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
            QCOMPARE(rings(view), edits ? 0 : 1);
            stage.window->key(Qt::Key_Tab);
        }
        // Wherever the keyboard is, a finger anywhere hides that.
        stage.window->key(Qt::Key_Backtab);
        QCOMPARE(rings(view), 1);
        WindowDriver::tap(view, {160, 5});
        QCOMPARE(rings(view), 0);
    }

    void keysLeaveTheScreen_data() { addCases(allScreens()); }

    void keysLeaveTheScreen()
    {
        const Screen &screen = currentCase<Screen>();
        for (const int tabs : {0, 2, 3}) {
            ScreenStage stage(screen);
            for (int i = 0; i < tabs; ++i) {
                stage.window->key(Qt::Key_Tab);
            }
            QTest::keyClick(&stage.window->view(), Qt::Key_Left, Qt::AltModifier);
            stage.window->settle();
            QVERIFY(stage.accessible(screen.back));
            stage.window->key(Qt::Key_Escape);
            stage.window->settle();
            QVERIFY(stage.accessible(screen.escaped));
            QVERIFY(screen.back == screen.escaped || !stage.accessible(screen.back));
            QVERIFY(stage.window->view().activeFocusItem()->isVisible());
        }
    }

    void aTouchThatOutlivesItsPageTakesNoKeyboard()
    {
        ScreenStage stage(allScreens().front());
        QQuickView &view = stage.window->view();
        auto *login = stage.app.top<WZTLoginViewController>();
        WindowDriver::Finger finger(
            view, view.mapFromGlobal(stage.accessible(u"Email"_s)->rect().center()));
        login->displayErrorMessage(u"Meanwhile"_s);
        stage.window->settle();
        finger.lift();
        stage.window->key(Qt::Key_Return);
        stage.window->settle();
        QCOMPARE(stage.app.top(), login);
    }

    void theWheelScrollsWhateverIsBelow_data()
    {
        addCases<Wheel>({
            {"a row", 1, u"Bug Reporter"_s},
            {"a button", 5, u"Update"_s},
            {"a text view, back", 4, u"Notes"_s},
        });
    }

    void theWheelScrollsWhateverIsBelow()
    {
        const auto &[name, screen, over] = currentCase<Wheel>();
        ScreenStage stage(allScreens().at(screen), {.textScale = 2});
        if (screen == 4) {
            stage.window->key(Qt::Key_Tab);
            stage.window->type(u"\r"_s.repeated(20));
        }
        QQuickView &view = stage.window->view();
        view.grabWindow();
        const QAccessibleInterface *item = stage.accessible(over);
        const auto place = [&] { return view.mapFromGlobal(item->rect().center()).y(); };
        const int direction = screen == 4 ? 1 : -1;
        for (const int pixels : {0, 15}) { // a mouse's, a touchpad's
            const int before = place();
            const QPointF at(160, qBound(60, before, 500));
            QWheelEvent turn(at, view.mapToGlobal(at), {0, direction * pixels},
                             {0, direction * 120}, Qt::NoButton, Qt::NoModifier,
                             pixels ? Qt::ScrollBegin : Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&view, &turn);
            QTRY_VERIFY((place() - before) * direction > 0);
        }
    }

    void everythingIsMirrored_data() { addCases(allScreens()); }

    void everythingIsMirrored()
    {
        const Screen &screen = currentCase<Screen>();
        QList<Seen> seen[2];
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            ScreenStage stage(screen);
            QTRY_VERIFY(!stage.accessible(u"Loading"_s));
            stage.window->view().grabWindow();
            collect(stage.window->view().contentItem(), seen[direction]);
        }
        QCOMPARE(seen[1].size(), seen[0].size());
        for (int i = 0; i < seen[0].size(); ++i) {
            const auto &[name, rect, slope] = seen[0][i];
            const auto &[same, other, otherSlope] = seen[1][i];
            const QRectF mirrored(320 - rect.right(), rect.y(), rect.width(), rect.height());
            QVERIFY2(qAbs(other.x() - mirrored.x()) <= 1
                         && qAbs(other.right() - mirrored.right()) <= 1
                         && qAbs(otherSlope + slope) < 0.1,
                     qPrintable(name));
        }
    }
};

WZT_TEST(ScreensDrawingTest)
#include "ScreensDrawingTest.moc"
