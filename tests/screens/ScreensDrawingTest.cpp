// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/DemoIssues.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

struct Screen {
    const char *name;
    bool signedIn;
    QStringList path; // what is pressed on the way
    QString walk; // where Tab comes to, from the first on
    QString escaped; // what is there after Escape
    QString back; // what is there after Alt+Left
};

const std::vector<Screen> screens{
    {"Login",
     false,
     {},
     u"Email, Password, Login, Forgot Password?, Need an Account?"_s,
     u"Login"_s,
     u"Login"_s},
    {"Home", true, {}, u"rows, Home, Account"_s, u"Bug Reporter"_s, u"Bug Reporter"_s},
    {"projects",
     true,
     {u"Bug Reporter"_s},
     u"rows, Home, Account, Back to Home"_s,
     u"Bug Reporter"_s,
     u"Bug Reporter"_s},
    {"issues",
     true,
     {u"Bug Reporter"_s, u"Marrow!"_s},
     u"rows, Cancel, Add"_s,
     u"Pintle"_s,
     u"Marrow! Issues"_s},
    {"new issue",
     true,
     {u"Bug Reporter"_s, u"Marrow!"_s, u"Add"_s},
     u"Title, Notes, Cancel, Submit"_s,
     u"Marrow! Issues"_s,
     u"New Issue"_s},
    {"Account",
     true,
     {u"Account"_s},
     u"rows, Update, Logout, Home, Account"_s,
     u"Logout"_s,
     u"Logout"_s},
    {"alert",
     true,
     {u"Account"_s, u"Update"_s},
     u"Jo, New Password, Current Password, Dismiss, Update"_s,
     u"Logout"_s,
     u"Update Account"_s},
};

/// The application at one of its screens, in the smallest window.
struct Stage {
    explicit Stage(const Screen &screen, double textScale = 1)
    {
        if (screen.signedIn)
            app.keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        if (!app.service().addIssues(sandbox::demoIssues()))
            qFatal("no issues");
        app.launch();
        window.emplace(app, QSize(320, 568),
                       UIAppearance{.textScale = textScale, .reduceMotion = true});
        for (const QString &name : screen.path) {
            window->settle();
            accessible(name)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        }
        window->settle();
        if (accessible(u"Loading"_s)) // or rows would come while they are looked at
            QTRY_VERIFY(!accessible(u"Loading"_s));
    }

    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }
    /// What has the keyboard.
    [[nodiscard]] QString focused()
    {
        QQuickItem *item = window->view().activeFocusItem();
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
        const QString type = QString::fromLatin1(item->metaObject()->className());
        return interface                        ? interface->text(QAccessible::Name)
            : type.startsWith(u"UIFocusItem"_s) ? u"rows"_s
                                                : type;
    }
    [[nodiscard]] qsizetype rings()
    {
        const QList<QQuickItem *> all = WindowDriver::items(window->view(), u"FocusRing"_s);
        return std::ranges::count_if(all, &QQuickItem::isVisible);
    }
    QStringList walk(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QStringList names;
        for (QString now = focused(); !names.contains(now); now = focused()) {
            names.append(now);
            QTest::keyClick(&window->view(), key, modifiers);
        }
        return names;
    }

    TestApp app;
    std::optional<TestWindow> window;
};

struct Seen {
    QString name;
    QRectF rect; // that it, or its text, takes in the window
    double slope; // of what is rotated: above 0 when it falls as lines are read from the left
};

/// What is seen of `item` and below it.
void collect(QQuickItem *item, QList<Seen> &seen)
{
    const QString type = QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0);
    if (!item->isVisible() || type == u"TextCursor"_s)
        return;
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
    if (!area.isEmpty())
        seen.append({type + u' ' + item->property("text").toString(), item->mapRectToScene(area),
                     along.x() * along.y()});
    // Where a text begins that is edited is up to its letters.
    if (type == u"TextFieldInput"_s || type == u"UITextViewView"_s)
        return;
    for (QQuickItem *child : item->childItems())
        collect(child, seen);
}

using Wheel = std::tuple<const char *, std::size_t, QString>;

} // namespace

/// What holds for every screen.
class ScreensDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void theKeyboardComesToEverything_data() { addCases(screens); }

    void theKeyboardComesToEverything()
    {
        const Screen &screen = currentCase<Screen>();
        Stage stage(screen);
        QCOMPARE(stage.rings(), 0);
        const QStringList walk = stage.walk(Qt::Key_Tab);
        QCOMPARE(walk.join(u", "_s), screen.walk);
        QStringList back = stage.walk(Qt::Key_Backtab, Qt::ShiftModifier);
        back.append(back.takeFirst());
        std::ranges::reverse(back);
        QCOMPARE(back, walk);
        for (int i = 0; i < walk.size(); ++i) {
            const bool edits = stage.window->view().activeFocusItem()->flags().testFlag(
                QQuickItem::ItemAcceptsInputMethod);
            QCOMPARE(stage.rings(), edits ? 0 : 1);
            stage.window->key(Qt::Key_Tab);
        }
        // Wherever the keyboard is, a finger anywhere hides that.
        stage.window->key(Qt::Key_Backtab);
        QVERIFY(stage.rings() == 1);
        WindowDriver::tap(stage.window->view(), {160, 5});
        QCOMPARE(stage.rings(), 0);
    }

    void keysLeaveTheScreen_data() { addCases(screens); }

    void keysLeaveTheScreen()
    {
        const Screen &screen = currentCase<Screen>();
        for (const int tabs : {0, 2}) {
            Stage stage(screen);
            for (int i = 0; i < tabs; ++i)
                stage.window->key(Qt::Key_Tab);
            QTest::keyClick(&stage.window->view(), Qt::Key_Left, Qt::AltModifier);
            stage.window->settle();
            QVERIFY(stage.accessible(screen.back));
            if (screen.back == screen.escaped)
                continue;
            stage.window->key(Qt::Key_Escape);
            stage.window->settle();
            QVERIFY(stage.accessible(screen.escaped) && !stage.accessible(screen.back));
        }
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
        Stage stage(screens.at(screen), 2);
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

    void everythingIsMirrored_data() { addCases(screens); }

    void everythingIsMirrored()
    {
        const Screen &screen = currentCase<Screen>();
        QList<Seen> seen[2];
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            Stage stage(screen);
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
