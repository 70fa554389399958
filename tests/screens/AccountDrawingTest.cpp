// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UIAlertController.h"
#include "screens/WZTLoginViewController.h"
#include "screens/WZTUserViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"
#include "views/PressedColor.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;

// The Account tab in a real window.
struct Stage {
    explicit Stage(const QSize &size = {390, 844}, const UIAppearance &appearance = {},
                   const QString &name = u"Jo"_s, const QString &email = u"jo@wzt.example"_s)
    {
        const auto account = app.service().addAccount({.email = email, .name = name}, u"secret"_s);
        WZTUser user(static_cast<int>(account->number), email, name);
        user.joinDate = NSDate{816'564'600};
        app.keepUser(user);
        app.launch();
        app.delegate().tabController()->setSelectedIndex(1);
        window.emplace(app, size, appearance);
        window->settle();
    }

    template <class Cell>
    [[nodiscard]] Cell &cell(int entry)
    {
        const UITableViewEntries &entries = *app.delegate().userVC()->tableView()->entries();
        const auto shown = entries.index(entry).data(UITableViewEntries::CellRole);
        return *qobject_cast<Cell *>(shown.value<UITableViewCell *>());
    }
    [[nodiscard]] WZTAccountTableViewCell &card() { return cell<WZTAccountTableViewCell>(4); }
    [[nodiscard]] WZTGlossyButton &logout() { return *cell<WZTButtonTableViewCell>(7).button(); }
    [[nodiscard]] UIRefreshControl &refreshControl()
    {
        return *app.delegate().userVC()->tableView()->refreshControl();
    }
    [[nodiscard]] QQuickItem *drawing(const QObject &control)
    {
        return WindowDriver::drawing(window->view(), &control);
    }
    [[nodiscard]] QRectF rect(const QObject &control)
    {
        return WindowDriver::rect(drawing(control));
    }
    [[nodiscard]] QPoint centre(const QObject &control) { return rect(control).center().toPoint(); }
    [[nodiscard]] QQuickItem *list()
    {
        return drawing(*app.delegate().userVC()->tableView())->findChild<QQuickItem *>(u"list"_s);
    }
    [[nodiscard]] double scrolled()
    {
        const auto value = [&](const char *name) { return list()->property(name).toDouble(); };
        return value("contentY") - value("originY") + value("verticalOvershoot");
    }
    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }

    TestApp app;
    std::optional<TestWindow> window;
};

enum Edge { Top, Bottom, Leading, Trailing, CenterX, CenterY, Height };

double place(const QRectF &rect, Edge edge)
{
    const double places[] = {rect.top(),        rect.bottom(),     rect.left(),  rect.right(),
                             rect.center().x(), rect.center().y(), rect.height()};
    return places[edge];
}

// A finger or the mouse, by turns of a row.
struct Pointer {
    Pointer(QQuickView &window, bool touches) : view(window), touch(touches) { }

    void press(const QPoint &at)
    {
        if (touch)
            QTest::touchEvent(&view, WindowDriver::screen()).press(0, at, &view);
        else
            QTest::mousePress(&view, Qt::LeftButton, {}, at);
    }
    void move(const QPoint &at)
    {
        if (touch)
            QTest::touchEvent(&view, WindowDriver::screen()).move(0, at, &view);
        else
            QTest::mouseMove(&view, at);
        QTest::qWait(20); // moves are compressed within a frame
    }
    void release(const QPoint &at)
    {
        if (touch)
            QTest::touchEvent(&view, WindowDriver::screen()).release(0, at, &view);
        else
            QTest::mouseRelease(&view, Qt::LeftButton, {}, at);
    }
    void drag(const QPoint &from, int by)
    {
        press(from);
        for (int step = 1; step <= 8; ++step)
            move(from + QPoint(0, by * step / 8));
    }

    QQuickView &view;
    bool touch;
};

} // namespace

/// The Account tab as it is drawn, touched and read out.
class AccountDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void relations_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("textScale");
        QTest::addColumn<bool>("isLong");
        for (const int width : {320, 390, 768}) {
            for (const double scale : {1.0, 2.0}) {
                for (const bool isLong : {false, true}) {
                    QTest::addRow("%d points at %g, long: %d", width, scale, isLong)
                        << QSize(width, 844) << scale << isLong;
                }
            }
        }
    }

    void relations()
    {
        QFETCH(const QSize, size);
        QFETCH(const double, textScale);
        QFETCH(const bool, isLong);
        const QString name = isLong ? QString(u"Maximiliane "_s).repeated(8) : u"Jo"_s;
        const QString email = isLong ? QString(90, u'x') + u"@wzt.example"_s : u"jo@wzt.example"_s;
        Stage stage(size, {.textScale = textScale}, name, email);
        WZTAccountTableViewCell &card = stage.card();
        const QObject *views[] = {&card,
                                  card.cardBackgroundView(),
                                  card.headerLabel(),
                                  card.editButton(),
                                  card.dividerOneView(),
                                  card.userNameLabel(),
                                  card.dividerTwoView(),
                                  card.userNameTitleLabel(),
                                  card.emailLabel(),
                                  card.dividerThreeView(),
                                  card.emailTitleLabel(),
                                  card.userSinceLabel()};
        enum View {
            Cell,
            Card,
            Heading,
            Button,
            One,
            Name,
            Two,
            NameTitle,
            Email,
            Three,
            EmailTitle,
            Since,
            None
        };
        enum Relation { Equal, AtMost };
        static constexpr struct {
            View view;
            Edge edge;
            View other;
            Edge otherEdge;
            double constant = 0;
            Relation relation = Equal;
        } relations[] = {
            {Card, Top, Cell, Top},
            {Card, Bottom, Cell, Bottom},
            {Card, Leading, Cell, Leading, 16},
            {Card, Trailing, Cell, Trailing, -16},
            {Heading, Top, Card, Top, 14},
            {Heading, Leading, Card, Leading, 14},
            {Heading, Trailing, Button, Leading, -10, AtMost},
            {Button, Trailing, Card, Trailing, -14},
            {Button, CenterY, Heading, CenterY},
            {One, Top, Heading, Bottom, 14},
            {One, Leading, Cell, Leading},
            {One, Trailing, Cell, Trailing},
            {One, Height, None, Height, 1},
            {Name, Top, One, Bottom, 10},
            {Name, Leading, Card, Leading, 14},
            {Name, Trailing, Card, Trailing, -14, AtMost},
            {Two, Top, Name, Bottom, 2},
            {Two, Leading, Name, Leading},
            {Two, Trailing, Name, Trailing},
            {Two, Height, None, Height, 1},
            {NameTitle, Top, Two, Bottom, 2},
            {NameTitle, Leading, Card, Leading, 14},
            {Email, Top, NameTitle, Bottom, 14},
            {Email, Leading, Card, Leading, 14},
            {Email, Trailing, Card, Trailing, -14, AtMost},
            {Three, Top, Email, Bottom, 2},
            {Three, Leading, Email, Leading},
            {Three, Trailing, Email, Trailing},
            {Three, Height, None, Height, 1},
            {EmailTitle, Top, Three, Bottom, 2},
            {EmailTitle, Leading, Card, Leading, 14},
            {Since, Top, EmailTitle, Bottom, 14},
            {Since, CenterX, Card, CenterX},
            {Since, Bottom, Card, Bottom, -14},
        };
        static_assert(std::size(relations) == 34);
        for (const auto &row : relations) {
            const double found = place(stage.rect(*views[row.view]), row.edge);
            const double other =
                row.other == None ? 0 : place(stage.rect(*views[row.other]), row.otherEdge);
            const double wanted = other + row.constant;
            // Centres fall on whole points.
            const double slack = row.edge == CenterX || row.edge == CenterY ? 0.51 : 1e-6;
            QVERIFY2(
                row.relation == AtMost ? found <= wanted + slack
                                       : std::abs(found - wanted) <= slack,
                qPrintable(
                    u"relation %1: %2 for %3"_s.arg(&row - relations + 1).arg(found).arg(wanted)));
        }
        // A text is as wide as its letters, or ends where the room does.
        for (const View view : {Name, Email}) {
            QCOMPARE(stage.rect(*views[view]).width(),
                     qMin(stage.drawing(*views[view])->implicitWidth(),
                          stage.rect(*views[Card]).width() - 28));
        }
        QVERIFY(stage.accessible(email));
    }

    void smallCells()
    {
        Stage stage({320, 568});
        auto &header = stage.cell<WZTHeaderTableViewCell>(1);
        const QRectF logo = stage.rect(*header.logoImageView());
        const QRectF row = stage.rect(header);
        QCOMPARE(logo.width(), 62);
        QVERIFY(std::abs(logo.height() - 49.046) < 0.01);
        QVERIFY(std::abs(row.height() - logo.height() - 10) < 0.01);
        QCOMPARE(logo.center().x(), 160);
        const QRectF button = stage.rect(stage.logout());
        QCOMPARE(button.left(), 20);
        QCOMPARE(button.right(), 300);
        QCOMPARE(button.height(), stage.rect(stage.cell<WZTButtonTableViewCell>(7)).height());
        // 14 below the header's section, and the platform's space above the next.
        QVERIFY(std::abs(stage.rect(stage.card()).top() - row.bottom() - 14 - 18) < 0.01);

        stage.app.delegate().tabController()->setSelectedIndex(0);
        stage.window->settle();
        const auto find = [&] { return WindowDriver::named(stage.window->view(), u"heart"_s); };
        QTRY_VERIFY(find());
        const QQuickItem *heartItem = find();
        const QRectF heart = WindowDriver::rect(heartItem);
        const QRectF thanks =
            WindowDriver::rect(WindowDriver::named(stage.window->view(), u"thanks"_s));
        const QRectF card = WindowDriver::rect(heartItem->parentItem());
        QCOMPARE(heart, QRectF(145, card.top(), 30, 30));
        QCOMPARE(thanks.topLeft(), QPointF(10, heart.bottom() + 4));
        QCOMPARE(thanks.bottomRight(), QPointF(310, card.bottom() - 4));
    }

    void theCardCutsTheFirstDivider()
    {
        Stage stage({390, 844}, {.style = UIUserInterfaceStyle::Light});
        const QImage image = stage.window->view().grabWindow();
        const QRect divider = stage.rect(*stage.card().dividerOneView()).toAlignedRect();
        const auto color = [&](int x) { return image.pixelColor(x, divider.top()); };
        QCOMPARE(color(8), QColor(242, 242, 247));
        QVERIFY(color(18) != QColor(Qt::white));
        QCOMPARE(color(18), color(371));
        QCOMPARE(color(382), QColor(242, 242, 247));
    }

    void aFingerOnTheButton_data()
    {
        QTest::addColumn<bool>("touch");
        QTest::newRow("finger") << true;
        QTest::newRow("mouse") << false;
    }

    void aFingerOnTheButton()
    {
        QFETCH(const bool, touch);
        Stage stage;
        Pointer pointer(stage.window->view(), touch);
        const QPoint at = stage.centre(stage.logout());
        const UIColor red = UIColor::redColor();
        const auto isPressed = [&] {
            return stage.logout().backgroundColor() == pressedColor(red);
        };
        pointer.press(at);
        QTRY_VERIFY(isPressed());
        const QColor drawn = stage.window->view().grabWindow().pixelColor(at - QPoint(150, 0));
        QCOMPARE(drawn, pressedColor(red).drawn(false));
        pointer.move(at + QPoint(0, 150)); // the touch stays the button's
        QTRY_VERIFY(!isPressed());
        QCOMPARE(stage.scrolled(), 0);
        pointer.move(at + QPoint(0, 5));
        QTRY_VERIFY(isPressed());
        pointer.release(at);
        QTRY_VERIFY(stage.app.top<WZTLoginViewController>());
    }

    void scrollingPressesNothing()
    {
        Stage stage;
        Pointer pointer(stage.window->view(), true);
        pointer.drag(stage.centre(stage.logout()), 70);
        pointer.release(stage.centre(stage.logout()));
        QVERIFY(stage.logout().backgroundColor() == UIColor::redColor());
        QVERIFY(stage.app.delegate().currentUser());
        QTRY_COMPARE(stage.scrolled(), 0);
        QVERIFY(!stage.refreshControl().isRefreshing());
    }

    void pullsToRefresh_data() { aFingerOnTheButton_data(); }

    void pullsToRefresh()
    {
        QFETCH(const bool, touch);
        Stage stage;
        stage.app.service().updateAccount(
            {.number = 1, .email = u"jo@wzt.example"_s, .name = u"Joanna"_s});
        stage.app.service().stage("/user.php", Fault::delay(std::chrono::milliseconds(600)));
        Pointer pointer(stage.window->view(), touch);
        pointer.drag({195, 600}, 240);
        QVERIFY(stage.scrolled() < -80);
        QVERIFY2(!stage.refreshControl().isRefreshing(), "before it is let go of");
        pointer.release({195, 840});
        QVERIFY(stage.refreshControl().isRefreshing());
        QTRY_COMPARE(stage.scrolled(), -60);
        QVERIFY(stage.accessible(u"Loading"_s));
        QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        QTRY_COMPARE(stage.scrolled(), 0);
        QVERIFY(stage.accessible(u"Joanna"_s));
        QVERIFY(!stage.accessible(u"Loading"_s));
    }

    void refreshesByKeyWhereItIsSeen()
    {
        Stage stage({320, 400}, {.reduceMotion = true});
        stage.app.service().stage("/user.php", Fault::silence(), -1);
        const auto asked = [&] { return stage.refreshControl().isRefreshing(); };
        stage.card().editButton()->activate();
        stage.window->settle();
        stage.window->key(Qt::Key_F5);
        QVERIFY2(!asked(), "behind an alert");
        stage.app.top<UIAlertController>()->triggerCancel();
        stage.window->settle();
        stage.app.delegate().tabController()->setSelectedIndex(0);
        stage.window->key(Qt::Key_F5);
        QVERIFY2(!asked(), "in another tab");
        stage.app.delegate().tabController()->setSelectedIndex(1);
        stage.window->key(Qt::Key_F5);
        QVERIFY(asked());
        QTRY_COMPARE(stage.scrolled(), -60);
        stage.refreshControl().endRefreshing();
        QTRY_COMPARE(stage.scrolled(), 0);
    }

    // While the table is still on its way to the spinner.
    void aRefreshThatEndsAtOnceLeavesTheTableInPlace_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("pulls");
        for (const QSize size : {QSize(320, 568), QSize(390, 844)}) {
            for (const bool pulls : {false, true})
                QTest::addRow("%d points high, pulled: %d", size.height(), pulls) << size << pulls;
        }
    }

    void aRefreshThatEndsAtOnceLeavesTheTableInPlace()
    {
        QFETCH(const QSize, size);
        QFETCH(const bool, pulls);
        Stage stage(size, {.textScale = size.width() < 390 ? 2.0 : 1.0});
        stage.app.service().stage("/user.php", Fault::close());
        if (pulls) {
            Pointer pointer(stage.window->view(), true);
            pointer.drag({30, 60}, 320);
            pointer.release({30, 380});
        } else {
            stage.window->key(Qt::Key_F5);
        }
        QTRY_COMPARE(stage.app.service().requests().size(), 1);
        QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        QTRY_VERIFY(!stage.list()->property("moving").toBool());
        QTRY_COMPARE(stage.scrolled(), 0);
        QTRY_COMPARE(stage.list()->property("topMargin").toDouble(), 0);
    }

    void tabReachesWhatIsOutOfSight()
    {
        Stage stage({320, 568}, {.textScale = 2});
        for (int i = 0; i < 10 && !stage.drawing(stage.logout())->hasActiveFocus(); ++i)
            stage.window->key(Qt::Key_Tab);
        QVERIFY(stage.drawing(stage.logout())->hasActiveFocus());
        const auto seen = [&] {
            return WindowDriver::rect(stage.list()).contains(stage.rect(stage.logout()));
        };
        QTRY_VERIFY(seen());
        stage.window->key(Qt::Key_Space);
        QTRY_VERIFY(stage.app.top<WZTLoginViewController>());
    }

    void isReadOut()
    {
        Stage stage;
        const std::pair<const char16_t *, QAccessible::Role> rows[] = {
            {u"Account Details", QAccessible::Heading}, {u"Update", QAccessible::Button},
            {u"Jo", QAccessible::StaticText},           {u"Name", QAccessible::StaticText},
            {u"Email", QAccessible::StaticText},        {u"Logout", QAccessible::Button},
        };
        for (const auto &[name, role] : rows) {
            QAccessibleInterface *found = stage.accessible(QString::fromUtf16(name));
            QVERIFY2(found, qPrintable(QString::fromUtf16(name)));
            QCOMPARE(found->role(), role);
        }
        const auto press = [&](const QString &name) {
            stage.accessible(name)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        };
        press(u"Update"_s);
        QTRY_VERIFY(stage.app.top<UIAlertController>());
        QCOMPARE(stage.app.top<UIAlertController>()->title(), u"Update Account"_s);
        stage.app.top<UIAlertController>()->triggerCancel();
        stage.window->settle();
        press(u"Logout"_s);
        QTRY_VERIFY(stage.app.top<WZTLoginViewController>());
        stage.window->settle();
        QVERIFY(!stage.accessible(u"Logout"_s));
    }

    void aShinyButton()
    {
        RecordingHost host;
        UIApplication application(host);
        application.traits().setOverride(UIAppearance{.style = UIUserInterfaceStyle::Light});
        WZTGlossyButton button(QRectF(0, 0, 200, 50), UIColor::colorWithRed(0, 0, 1, 1));
        QQuickView view;
        view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        view.setInitialProperties({{u"control"_s, QVariant::fromValue(&button)}});
        view.setSource(QUrl(u"qrc:/qt/qml/Views/WZTGlossyButtonView.qml"_s));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCOMPARE(view.rootObject()->size(), QSizeF(200, 50));
        const QImage image = view.grabWindow();
        const auto red = [&](int y) { return image.pixelColor(100, y).red(); };
        QVERIFY2(red(4) > 80 && red(22) > 45 && red(22) < red(4), "lighter towards the top");
        QVERIFY2(red(22) - red(27) > 5 && red(23) - red(26) > 5, "an edge across the middle");
        QVERIFY2(red(46) > red(40), "lighter at the bottom");
        QVERIFY2(image.pixelColor(0, 0).blue() > 240 && image.pixelColor(0, 0).red() > 240,
                 "nothing in the corners");
    }
};

WZT_TEST(AccountDrawingTest)
#include "AccountDrawingTest.moc"
