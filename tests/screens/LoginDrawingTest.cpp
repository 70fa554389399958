// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "tests/screens/ScreenStage.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

struct LoginStage : ScreenStage {
    explicit LoginStage(const QSize &size = {390, 844}, const DesktopAppearance &appearance = {})
        : ScreenStage("Login", {size, appearance})
    {
    }

    WZTLoginViewController *login = top<WZTLoginViewController>();
};

} // namespace

/// The sign-in screen as it is drawn, touched, typed in and closed.
class LoginDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void relations()
    {
        for (const int width : {390, 768, 320}) {
            LoginStage stage({width, 844}, {.textScale = width < 390 ? 2.0 : 1.0});
            stage.login->activityIndicator()->startAnimating();
            const auto rect = [&](const QObject *control) { return stage.rect(control); };
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
            QCOMPARE(
                card,
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
    }

    // A held key acts once.
    void signInByKeyboard()
    {
        LoginStage stage;
        stage.service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
        stage.type(u"jo@wzt.example"_s); // the keyboard is in the e-mail field
        stage.hold(Qt::Key_Return);
        stage.type(u"secret"_s);
        stage.hold(Qt::Key_Return);
        QTRY_VERIFY(stage.top<WZTTabBarController>());
        QCOMPARE(stage.delegate().currentUser()->userName, u"Jo"_s);
        QCOMPARE(stage.host().taps, 1);
    }

    void taps()
    {
        LoginStage stage;
        const auto edits = [](const UITextField *field) { return field->isFirstResponder(); };
        for (int i = 0; i < 2; ++i) { // one in the field that is edited ends nothing
            stage.tap(stage.login->passwordTextField());
            QTRY_VERIFY(edits(stage.login->passwordTextField()));
        }
        stage.tap(stage.login->logoImageView());
        QTRY_VERIFY(!edits(stage.login->passwordTextField()));
        stage.tap(stage.login->emailTextField());
        QTRY_VERIFY(edits(stage.login->emailTextField()));
        stage.tap(stage.login->registerButton()); // ends editing and still counts
        QTRY_VERIFY(stage.top<UIAlertController>());
        QCOMPARE(stage.host().taps, 1);
    }

    void closedScreensAndTheirDrawingsAreDestroyed()
    {
        LoginStage stage({390, 844}, {.reduceMotion = true});
        WZTTabBarController &tabs = *stage.delegate().tabController();
        const QObject *root = stage.view().contentItem();
        std::vector<QPointer<QObject>> closed;
        qsizetype items = 0;
        for (int i = 0; i < 300; ++i) {
            auto *login = stage.top<WZTLoginViewController>();
            login->registerButton()->activate();
            closed.insert(closed.end(), {login, stage.top()});
            tabs.dismissViewControllerAnimated(false);

            const auto form =
                make<WZTIssueReporterViewController>(WZTPackage::allPackages().front());
            const auto navigation = make<UINavigationController>(form);
            closed.insert(closed.end(), {navigation.get(), form.get()});
            tabs.presentViewController(navigation, false);
            stage.type(u"x"_s);
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
    }
};

WZT_TEST(LoginDrawingTest)
#include "LoginDrawingTest.moc"
