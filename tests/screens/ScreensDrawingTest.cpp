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
};

const std::vector<Screen> screens{
    {"Login", false, {}, u"Email, Password, Login, Forgot Password?, Need an Account?"_s},
    {"Home", true, {}, u"rows, Home, Account"_s},
    {"projects", true, {u"Bug Reporter"_s}, u"rows, Home, Account, Back to Home"_s},
    {"issues", true, {u"Bug Reporter"_s, u"Marrow!"_s}, u"rows, Cancel, Add"_s},
    {"new issue",
     true,
     {u"Bug Reporter"_s, u"Marrow!"_s, u"Add"_s},
     u"Title, Notes, Cancel, Submit"_s},
    {"Account", true, {u"Account"_s}, u"rows, Update, Logout, Home, Account"_s},
    {"alert",
     true,
     {u"Account"_s, u"Update"_s},
     u"Jo, New Password, Current Password, Dismiss, Update"_s},
};

/// The application at one of its screens, in the smallest window.
struct Stage {
    explicit Stage(const Screen &screen)
    {
        if (screen.signedIn)
            app.keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        if (!app.service().addIssues(sandbox::demoIssues()))
            qFatal("no issues");
        app.launch();
        window.emplace(app, QSize(320, 568), UIAppearance{.reduceMotion = true});
        for (const QString &name : screen.path) {
            window->settle();
            accessible(name)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        }
        window->settle();
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
        return interface ? interface->text(QAccessible::Name)
                         : type.startsWith(u"UIFocusItem"_s) ? u"rows"_s : type;
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

/// What is seen of `item` and below it, each with the rectangle that it or its text takes.
void collect(QQuickItem *item, QList<std::pair<QString, QRectF>> &seen)
{
    const QString type = QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0);
    if (!item->isVisible() || type == u"TextCursor"_s)
        return;
    QRectF area(0, 0, item->width(), item->height());
    const double width = item->property("contentWidth").toDouble();
    if (width > 0 && width < area.width()) {
        const int alignment = item->property("effectiveHorizontalAlignment").toInt();
        const double room = area.width() - width;
        area.setLeft(alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? room : room / 2);
        area.setWidth(width);
    }
    if (!area.isEmpty())
        seen.append({type + u' ' + item->property("text").toString(), item->mapRectToScene(area)});
    // Where a text begins that is edited is up to its letters.
    if (type == u"TextFieldInput"_s || type == u"UITextViewView"_s)
        return;
    for (QQuickItem *child : item->childItems())
        collect(child, seen);
}

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

    void everythingIsMirrored_data() { addCases(screens); }

    void everythingIsMirrored()
    {
        const Screen &screen = currentCase<Screen>();
        QList<std::pair<QString, QRectF>> seen[2];
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            Stage stage(screen);
            QTRY_VERIFY(!stage.accessible(u"Loading"_s));
            stage.window->view().grabWindow();
            collect(stage.window->view().contentItem(), seen[direction]);
        }
        QCOMPARE(seen[1].size(), seen[0].size());
        for (int i = 0; i < seen[0].size(); ++i) {
            const auto &[name, rect] = seen[0][i];
            const QRectF mirrored(320 - rect.right(), rect.y(), rect.width(), rect.height());
            const QRectF difference = seen[1][i].second;
            QVERIFY2(qAbs(difference.x() - mirrored.x()) <= 1
                         && qAbs(difference.right() - mirrored.right()) <= 1,
                     qPrintable(name));
        }
    }
};

WZT_TEST(ScreensDrawingTest)
#include "ScreensDrawingTest.moc"
