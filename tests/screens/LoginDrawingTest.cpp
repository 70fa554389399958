// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/WZTTabBarController.h"
#include "platform/uikit/Make.h"
#include "platform/uikit/UIAlertController.h"
#include "screens/WZTLoginViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A sign-in screen in a real window.
struct Stage {
    explicit Stage(const QSize &size = {390, 844}, const UIAppearance &appearance = {})
    {
        app.launch();
        window.emplace(app, size, appearance);
        window->settle();
        login = app.top<WZTLoginViewController>();
    }

    [[nodiscard]] QRectF rect(const QObject *control)
    {
        return WindowDriver::rect(WindowDriver::drawing(window->view(), control));
    }
    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }
    [[nodiscard]] qsizetype tabBars()
    {
        return WindowDriver::items(window->view(), u"UITabBarView"_s).size();
    }

    TestApp app;
    std::optional<TestWindow> window;
    WZTLoginViewController *login = nullptr;
};

} // namespace

/// The sign-in screen as it is drawn, touched and read out.
class LoginDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void geometry_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<double>("textScale");
        for (const int width : {320, 390, 768}) {
            for (const double scale : {1.0, 2.0})
                QTest::addRow("%d points at %g", width, scale) << width << scale;
        }
    }

    void geometry()
    {
        QFETCH(const int, width);
        QFETCH(const double, textScale);
        Stage stage({width, 844}, {.textScale = textScale});
        WZTLoginViewController &login = *stage.login;
        const QRectF logo = stage.rect(login.logoImageView());
        const QRectF card = stage.rect(login.formContainer());
        const QRectF header = stage.rect(login.headerLabel());
        const QRectF email = stage.rect(login.emailTextField());
        const QRectF password = stage.rect(login.passwordTextField());
        const QRectF in = stage.rect(login.loginButton());
        const QRectF forgot = stage.rect(login.forgotPasswordButton());
        const QRectF account = stage.rect(login.registerButton());
        login.activityIndicator()->startAnimating();
        const QRectF spinner = stage.rect(login.activityIndicator());

        const std::tuple<const char *, double, double> rows[] = {
            {"logo top", logo.top(), 28},
            {"logo centre x", logo.center().x(), width / 2.0},
            {"logo width", logo.width(), 62},
            {"logo height", logo.height(), 62 * 53.0 / 67},
            {"card top", card.top(), logo.bottom() + 24},
            {"card leading", card.left(), 20},
            {"card trailing", card.right(), width - 20},
            {"header top", header.top(), card.top() + 14},
            {"header leading", header.left(), card.left() + 14},
            {"e-mail top", email.top(), header.bottom() + 14},
            {"e-mail leading", email.left(), card.left() + 14},
            {"e-mail trailing", email.right(), card.right() - 14},
            {"e-mail height", email.height(), 36},
            {"password top", password.top(), email.bottom() + 14},
            {"password leading", password.left(), card.left() + 14},
            {"password trailing", password.right(), card.right() - 14},
            {"password height", password.height(), 36},
            {"login trailing", in.right(), card.right() - 20},
            {"login top", in.top(), password.bottom() + 20},
            {"login bottom", in.bottom(), card.bottom() - 20},
            {"forgot leading", forgot.left(), card.left() + 20},
            {"forgot top", forgot.top(), password.bottom() + 20},
            {"forgot centre y", forgot.center().y(), in.center().y()},
            {"account top", account.top(), card.bottom() + 20},
            {"account centre x", account.center().x(), width / 2.0},
            {"spinner top", spinner.top(), account.bottom() + 20},
            {"spinner centre x", spinner.center().x(), width / 2.0},
        };
        for (const auto &[what, actual, expected] : rows) {
            // Text is as wide as its glyphs; a centred one may start on a half point.
            const QString found =
                u"%1: %2, not %3"_s.arg(QLatin1String(what)).arg(actual).arg(expected);
            QVERIFY2(qAbs(actual - expected) <= 0.51, qPrintable(found));
        }
        QVERIFY(header.right() <= card.right() - 10);
        QVERIFY(forgot.right() <= card.right() - 10);
        QVERIFY2(!forgot.intersects(in), "the card's buttons overlap");
        QVERIFY(account.left() >= 0 && account.right() <= width);
    }

    void signInByTouchAndKeyboard()
    {
        Stage stage;
        stage.app.service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s},
                                       u"secret"_s);
        TestWindow &window = *stage.window;
        window.type(u"jo@wzt.example"_s); // the keyboard is in the e-mail field
        QCOMPARE(stage.login->emailTextField()->text(), u"jo@wzt.example"_s);
        window.key(Qt::Key_Return);
        window.type(u"wrong"_s);
        window.key(Qt::Key_Return);
        QTRY_VERIFY(stage.app.top<UIAlertController>());
        window.settle();
        window.key(Qt::Key_Return); // the only action
        QTRY_VERIFY(stage.app.top<WZTLoginViewController>());
        window.settle();
        QVERIFY2(stage.login->passwordTextField()->isFirstResponder(),
                 "the keyboard is back where it was");
        for (int i = 0; i < 5; ++i)
            window.key(Qt::Key_Backspace);
        window.type(u"secret"_s);
        window.tap(stage.login->loginButton());
        QTRY_VERIFY(stage.app.top<WZTTabBarController>());
        QTRY_COMPARE(stage.tabBars(), 1);
        QCOMPARE(stage.app.delegate().currentUser()->userName, u"Jo"_s);
    }

    void taps()
    {
        Stage stage;
        TestWindow &window = *stage.window;
        window.tap(stage.login->passwordTextField());
        QTRY_VERIFY(stage.login->passwordTextField()->isFirstResponder());
        window.tap(stage.login->passwordTextField());
        QVERIFY2(stage.login->passwordTextField()->isFirstResponder(),
                 "a tap in the field that is edited ends editing");
        window.tap(stage.login->logoImageView());
        QTRY_VERIFY(!stage.login->passwordTextField()->isFirstResponder());
        window.tap(stage.login->emailTextField());
        QTRY_VERIFY(stage.login->emailTextField()->isFirstResponder());
        window.tap(stage.login->registerButton()); // ends editing and still counts
        QTRY_VERIFY(stage.app.top<UIAlertController>());
        QCOMPARE(stage.app.host().taps, 1);
    }

    void tabOrder()
    {
        Stage stage;
        TestWindow &window = *stage.window;
        WZTLoginViewController &login = *stage.login;
        const UIView *const order[] = {login.emailTextField(), login.passwordTextField(),
                                       login.loginButton(),    login.forgotPasswordButton(),
                                       login.registerButton(), login.emailTextField()};
        for (const UIView *expected : order) {
            const QQuickItem *drawing = WindowDriver::drawing(window.view(), expected);
            const QQuickItem *focused = window.view().activeFocusItem();
            QVERIFY2(focused && (focused == drawing || drawing->isAncestorOf(focused)),
                     qPrintable(expected->accessibilityLabel()));
            window.key(Qt::Key_Tab);
        }
        window.key(Qt::Key_Tab); // on the button "Login"
        window.key(Qt::Key_Space);
        QTRY_VERIFY(stage.app.top<UIAlertController>());
    }

    void accessibleNamesAndRoles()
    {
        Stage stage;
        const std::pair<const char16_t *, QAccessible::Role> rows[] = {
            {u"Account Login", QAccessible::Heading},   {u"Email", QAccessible::EditableText},
            {u"Password", QAccessible::EditableText},   {u"Login", QAccessible::Button},
            {u"Forgot Password?", QAccessible::Button}, {u"Need an Account?", QAccessible::Button},
        };
        for (const auto &[name, role] : rows) {
            QAccessibleInterface *found = stage.accessible(QString::fromUtf16(name));
            QVERIFY2(found, qPrintable(QString::fromUtf16(name)));
            QCOMPARE(found->role(), role);
        }
        QVERIFY(stage.accessible(u"Password"_s)->state().passwordEdit);
        QVERIFY2(!stage.accessible(u"Home"_s), "what is covered is read out");
        auto *press = stage.accessible(u"Forgot Password?"_s)->actionInterface();
        press->doAction(QAccessibleActionInterface::pressAction());
        QTRY_VERIFY(stage.app.top<UIAlertController>());
        stage.window->settle();
        QVERIFY2(!stage.accessible(u"Login"_s), "what an alert blocks is read out");
        QVERIFY(stage.accessible(u"Reset"_s));
    }

    void aHeldReturnActsOnce()
    {
        Stage stage;
        const auto hold = [&] {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(&stage.window->view(), &repeat);
        };
        stage.window->key(Qt::Key_Tab);
        stage.window->key(Qt::Key_Return); // nothing is typed: an alert
        hold();
        stage.window->settle();
        hold();
        QVERIFY(stage.app.top<UIAlertController>());
        QCOMPARE(stage.app.host().taps, 1);
    }

    void closedScreensDieWithWhatDrewThem()
    {
        Stage stage({390, 844}, {.reduceMotion = true});
        const auto root = stage.window->view().contentItem();
        qsizetype items = 0;
        std::vector<QPointer<QObject>> closed;
        for (int i = 0; i < 500; ++i) {
            auto *login = stage.app.top<WZTLoginViewController>();
            closed.emplace_back(login);
            login->registerButton()->activate();
            closed.emplace_back(stage.app.top());
            stage.app.delegate().tabController()->dismissViewControllerAnimated(false);
            stage.app.delegate().tabController()->presentViewController(
                make<WZTLoginViewController>(), false);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (i == 0)
                items = root->findChildren<QObject *>().size();
        }
        const auto alive = [&] {
            return std::count_if(closed.begin(), closed.end(),
                                 [](const auto &controller) { return !controller.isNull(); });
        };
        QTRY_COMPARE(alive(), 0);
        QCOMPARE(root->findChildren<QObject *>().size(), items);
    }
};

WZT_TEST(LoginDrawingTest)
#include "LoginDrawingTest.moc"
