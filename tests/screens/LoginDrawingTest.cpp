// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "screens/login/WZTLoginViewController.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"

#include <QQuickItem>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// A sign-in screen in a real window.
struct Stage {
    explicit Stage(const QSize &size = {390, 844}, const DesktopAppearance &appearance = {})
    {
        app.launch();
        window.emplace(app, size, appearance);
        window->settle();
        login = app.top<WZTLoginViewController>();
    }

    TestApp app;
    std::optional<TestWindow> window;
    WZTLoginViewController *login = nullptr;
};

using Fit = std::tuple<const char *, int, double>;

// A centred text may start on a half point.
bool isNear(double some, double other)
{
    return qAbs(some - other) <= 0.51;
}

} // namespace

/// The sign-in screen as it is drawn, touched, typed in and closed.
class LoginDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void relations_data()
    {
        addCases<Fit>({{"phone", 390, 1}, {"tablet", 768, 1}, {"small and large", 320, 2}});
    }

    void relations()
    {
        const auto &[name, width, textScale] = currentCase<Fit>();
        Stage stage({width, 844}, {.textScale = textScale});
        stage.login->activityIndicator()->startAnimating();
        const auto rect = [&](const QObject *control) { return stage.window->rect(control); };
        const QRectF logo = rect(stage.login->logoImageView());
        const QRectF card = rect(stage.login->formContainer());
        const QRectF header = rect(stage.login->headerLabel());
        const QRectF email = rect(stage.login->emailTextField());
        const QRectF password = rect(stage.login->passwordTextField());
        const QRectF in = rect(stage.login->loginButton());
        const QRectF forgot = rect(stage.login->forgotPasswordButton());
        const QRectF account = rect(stage.login->registerButton());
        const QRectF spinner = rect(stage.login->activityIndicator());

        QCOMPARE(logo, QRectF((width - 62) / 2.0, 28, 62, 62 * 53.0 / 67));
        QCOMPARE(card,
                 QRectF(QPointF(20, logo.bottom() + 24), QPointF(width - 20, in.bottom() + 20)));
        QCOMPARE(header.topLeft(), card.topLeft() + QPointF(14, 14));
        QVERIFY(header.right() <= card.right() - 10);
        QCOMPARE(email, QRectF(34, header.bottom() + 14, card.width() - 28, 36));
        QCOMPARE(password, email.translated(0, 36 + 14));
        QCOMPARE(in.topRight(), QPointF(card.right() - 20, password.bottom() + 20));
        QCOMPARE(forgot.topLeft(), QPointF(card.left() + 20, in.top()));
        QVERIFY(isNear(forgot.center().y(), in.center().y()) && !forgot.intersects(in));
        QCOMPARE(account.top(), card.bottom() + 20);
        QVERIFY(isNear(account.center().x(), width / 2.0) && account.left() >= 0);
        QCOMPARE(spinner.top(), account.bottom() + 20);
        QVERIFY(isNear(spinner.center().x(), width / 2.0));
    }

    void signInByKeyboard()
    {
        Stage stage;
        stage.app.service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s},
                                       u"secret"_s);
        stage.window->type(u"jo@wzt.example"_s); // the keyboard is in the e-mail field
        stage.window->key(Qt::Key_Return);
        stage.window->type(u"secret"_s);
        stage.window->key(Qt::Key_Return);
        QTRY_VERIFY(stage.app.top<WZTTabBarController>());
        QCOMPARE(stage.app.delegate().currentUser()->userName, u"Jo"_s);
    }

    void taps()
    {
        Stage stage;
        TestWindow &window = *stage.window;
        const auto edits = [](const UITextField *field) { return field->isFirstResponder(); };
        for (int i = 0; i < 2; ++i) { // one in the field that is edited ends nothing
            window.tap(stage.login->passwordTextField());
            QTRY_VERIFY(edits(stage.login->passwordTextField()));
        }
        window.tap(stage.login->logoImageView());
        QTRY_VERIFY(!edits(stage.login->passwordTextField()));
        window.tap(stage.login->emailTextField());
        QTRY_VERIFY(edits(stage.login->emailTextField()));
        window.tap(stage.login->registerButton()); // ends editing and still counts
        QTRY_VERIFY(stage.app.top<UIAlertController>());
        QCOMPARE(stage.app.host().taps, 1);
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
        TestApp &app = stage.app;
        WZTTabBarController &tabs = *app.delegate().tabController();
        const QObject *root = stage.window->view().contentItem();
        std::vector<QPointer<QObject>> closed;
        qsizetype items = 0;
        for (int i = 0; i < 300; ++i) {
            auto *login = app.top<WZTLoginViewController>();
            login->registerButton()->activate();
            closed.insert(closed.end(), {login, app.top()});
            tabs.dismissViewControllerAnimated(false);

            const auto form =
                make<WZTIssueReporterViewController>(WZTPackage::allPackages().front());
            const auto navigation = make<UINavigationController>(form);
            closed.insert(closed.end(), {navigation.get(), form.get()});
            tabs.presentViewController(navigation, false);
            stage.window->type(u"x"_s);
            if (i % 100 == 0) { // the reply finds the form gone
                QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Query Items: "_s));
                form->submitPressed(nullptr);
            }
            tabs.dismissViewControllerAnimated(false);
            tabs.presentViewController(make<WZTLoginViewController>(), false);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (i == 10) {
                items = root->findChildren<QObject *>().size();
            }
        }
        const auto alive = [&] {
            return std::count_if(closed.begin(), closed.end(),
                                 [](const auto &controller) { return !controller.isNull(); });
        };
        QTRY_COMPARE(alive(), 0);
        QCOMPARE(root->findChildren<QObject *>().size(), items);
        QVERIFY2(app.top<WZTLoginViewController>(), "a late reply shows an alert");
    }
};

WZT_TEST(LoginDrawingTest)
#include "LoginDrawingTest.moc"
