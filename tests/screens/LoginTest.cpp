// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/WZTTabBarController.h"
#include "platform/uikit/Make.h"
#include "platform/uikit/UIAlertController.h"
#include "screens/WZTLoginViewController.h"
#include "service/TavloCategoryExtension.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr char aUser[] = R"({"userTavloID":42,"userEmail":"jo@wzt.example","userName":"Jo"})";

// Opens the flow of one operation and sends it off with that text in every field.
using Flow = void (*)(TestApp &app, const QString &text);

WZTLoginViewController &login(TestApp &app)
{
    const auto controllers = app.delegate().window()->presentation()->controllers();
    return dynamic_cast<WZTLoginViewController &>(*controllers.at(1));
}

void answerAlert(TestApp &app, const QString &text)
{
    auto *alert = app.top<UIAlertController>();
    for (const auto &field : alert->textFields())
        field->edit(text);
    alert->triggerDefault();
}

void signIn(TestApp &app, const QString &text)
{
    login(app).emailTextField()->edit(text);
    login(app).passwordTextField()->edit(text);
    login(app).loginButton()->activate();
}

void reset(TestApp &app, const QString &text)
{
    login(app).forgotPasswordButton()->activate();
    answerAlert(app, text);
}

void signUp(TestApp &app, const QString &text)
{
    login(app).registerButton()->activate();
    answerAlert(app, text);
}

QByteArray result(const char *text)
{
    return R"({"result":")" + QByteArray(text) + R"("})";
}

} // namespace

/// The sign-in screen's flows, from a touch to the service and back.
class LoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        QTest::addColumn<Flow>("flow");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");

        const auto row = [](const char *name, Flow flow, const char *path, const QByteArray &reply,
                            QStringView message, QStringView title = u"Error") {
            QTest::newRow(name) << flow << QByteArray(path) << reply << title.toString()
                                << message.toString();
        };
        const char *in = "/login.php";
        row("wrong password", signIn, in, result("Incorrect"),
            u"Account details did not match any account");
        row("unknown address", signIn, in, result("User Does Not Exist"),
            u"An account was not found for the supplied email.");
        row("nonsense", signIn, in, "<html>", u"An unknown error occured.");
        row("signed in", signIn, in, aUser, u"", u"");

        const char *forgotten = "/passwordreset.php";
        row("reset sent", reset, forgotten, result("Message has been sent"),
            u"A reset email has been sent.", u"Great!");
        row("reset not sent", reset, forgotten, result("Message could not be sent"),
            u"There was an error sending reset email");
        row("reset nonsense", reset, forgotten, aUser, u"An unknown error occured.");

        const char *up = "/register.php";
        row("address taken", signUp, up, result("User Exists"),
            u"An account already exists for this email.");
        row("improper", signUp, up, result("Improper request"),
            u"Account request couldn't be made at this time.");
        row("unexpected", signUp, up, result("user exists"),
            u"Received an unexpected response from server.");
        row("registered", signUp, up, aUser, u"", u"");
    }

    void outcomes()
    {
        QFETCH(const Flow, flow);
        QFETCH(const QByteArray, path);
        QFETCH(const QByteArray, reply);
        QFETCH(const QString, title);
        TestApp app;
        app.launch();
        app.service().stage(path, sandbox::Fault::json(reply, 500));

        flow(app, u"jo"_s);
        QCOMPARE(app.host().taps, 1);
        QVERIFY(login(app).activityIndicator()->isAnimating());
        if (title.isEmpty()) {
            QTRY_COMPARE(app.top<WZTTabBarController>(), app.delegate().tabController());
            QCOMPARE(app.delegate().currentUser()->tavloId, 42);
            return;
        }
        QTRY_VERIFY(app.top<UIAlertController>());
        const auto *alert = app.top<UIAlertController>();
        QCOMPARE(alert->title(), title);
        QTEST(alert->message(), "message");
        QCOMPARE(alert->actions().size(), std::size_t(1));
        QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
        QVERIFY(!login(app).activityIndicator()->isAnimating());
        QVERIFY(!app.delegate().currentUser());
    }

    void unreachableService_data()
    {
        QTest::addColumn<Flow>("flow");
        QTest::newRow("sign in") << Flow(signIn);
        QTest::newRow("reset") << Flow(reset);
        QTest::newRow("register") << Flow(signUp);
    }

    void unreachableService()
    {
        QFETCH(const Flow, flow);
        TestApp app;
        app.launch();
        app.stopService();
        flow(app, u"jo"_s);
        QTRY_VERIFY(app.top<UIAlertController>());
        QCOMPARE(app.top<UIAlertController>()->message(), u"An unknown error occured."_s);
        QVERIFY(!login(app).activityIndicator()->isAnimating());
    }

    void whatIsSent_data()
    {
        QTest::addColumn<Flow>("flow");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("target");
        const auto digest = [](const QString &text) { return SHA256(text).toLatin1(); };

        QTest::newRow("sign-in trims both fields")
            << Flow(signIn) << u" \u00a0jo\n"_s
            << QByteArray("/login.php?userEmail=jo&userPassword=" + digest(u"jo"_s));
        QTest::newRow("registration sends as typed")
            << Flow(signUp) << u" jo "_s
            << QByteArray("/register.php?userEmail=%20jo%20&userPassword=" + digest(u" jo "_s)
                          + "&userName=%20jo%20");
        QTest::newRow("registration sends empty fields")
            << Flow(signUp) << u""_s
            << QByteArray("/register.php?userEmail=&userPassword=" + digest(u""_s) + "&userName=");
        QTest::newRow("reset sends as typed")
            << Flow(reset) << u" jo "_s << QByteArray("/passwordreset.php?userEmail=%20jo%20");
        QTest::newRow("reset sends an empty field")
            << Flow(reset) << u""_s << QByteArray("/passwordreset.php?userEmail=");
    }

    void whatIsSent()
    {
        QFETCH(const Flow, flow);
        QFETCH(const QString, text);
        TestApp app;
        app.launch();
        flow(app, text);
        QTRY_COMPARE(app.service().requests().size(), 1);
        QTEST(app.service().requests().constFirst().target, "target");
    }

    void emptyFieldsAreRefusedWithoutARequest()
    {
        for (const auto &[email, password] : {std::pair{u" "_s, u"x"_s}, {u"x"_s, u"\t"_s}}) {
            TestApp app;
            app.launch();
            login(app).emailTextField()->edit(email);
            login(app).passwordTextField()->edit(password);
            login(app).passwordTextField()->returnPressed(); // does what the button does
            QVERIFY(app.top<UIAlertController>());
            QCOMPARE(app.top<UIAlertController>()->message(),
                     u"Ensure all fields are properly filled."_s);
            QCOMPARE(app.host().taps, 1);
            QVERIFY(!login(app).activityIndicator()->isAnimating());
            QCOMPARE(app.service().connectionCount(), 0);
        }
    }

    void codesWithoutAUserOrAMeaning()
    {
        using Screen = WZTLoginViewController;
        const struct {
            std::function<void(Screen &)> end;
            const char16_t *message;
            bool leaves;
        } rows[] = {
            {[](Screen &screen) { screen.loginEnded(1, std::nullopt); }, u"", true},
            {[](Screen &screen) { screen.registrationEnded(2, std::nullopt); }, u"", true},
            {[](Screen &screen) { screen.loginEnded(4, std::nullopt); }, u"", false},
            {[](Screen &screen) { screen.resetEnded(4); }, u"", false},
            {[](Screen &screen) { screen.resetEnded(1); },
             u"An account doesn't exists for this email.", false},
            {[](Screen &screen) { screen.registrationEnded(5, std::nullopt); }, u"", false},
        };
        for (const auto &row : rows) {
            TestApp app;
            app.launch();
            row.end(login(app));
            QCOMPARE(app.top<WZTTabBarController>() != nullptr, row.leaves);
            const auto *alert = app.top<UIAlertController>();
            QCOMPARE(alert ? alert->message() : QString(), QString::fromUtf16(row.message));
            QVERIFY(!app.delegate().currentUser());
        }
    }

    void alertsHaveTheirFieldsAndActions()
    {
        const UITextInputTraits name{.keyboardType = UIKeyboardType::ASCIICapable,
                                     .autocorrectionType = UITextAutocorrectionType::Yes,
                                     .textContentType = UITextContentType::Name};
        const UITextInputTraits email{.keyboardType = UIKeyboardType::EmailAddress,
                                      .autocorrectionType = UITextAutocorrectionType::No,
                                      .textContentType = UITextContentType::EmailAddress};
        const UITextInputTraits password{.textContentType = UITextContentType::NewPassword,
                                         .secureTextEntry = true};
        const UITextInputTraits older{.secureTextEntry = true};
        using Fields = std::vector<std::pair<const char16_t *, UITextInputTraits>>;
        const struct {
            double version;
            UIButton *(WZTLoginViewController::*button)();
            const char16_t *title;
            const char16_t *action;
            Fields fields;
        } rows[] = {
            {12,
             &WZTLoginViewController::registerButton,
             u"New Account",
             u"Register",
             {{u"Name", name}, {u"Email", email}, {u"Password", password}}},
            {11,
             &WZTLoginViewController::registerButton,
             u"New Account",
             u"Register",
             {{u"Name", name}, {u"Email", email}, {u"Password", older}}},
            {12,
             &WZTLoginViewController::forgotPasswordButton,
             u"Reset Password",
             u"Reset",
             {{u"Email", email}}},
        };
        for (const auto &row : rows) {
            TestApp app;
            app.launch();
            app.application().traits().setSystemVersion(row.version);
            (login(app).*row.button)()->activate();
            const auto *alert = app.top<UIAlertController>();
            QCOMPARE(alert->title(), QString::fromUtf16(row.title));
            QCOMPARE(alert->message(), QString());
            QCOMPARE(alert->actions().size(), std::size_t(2));
            QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
            QCOMPARE(alert->actions()[0]->style(), UIAlertAction::Style::Cancel);
            QCOMPARE(alert->actions()[1]->title(), QString::fromUtf16(row.action));
            QCOMPARE(alert->actions()[1]->style(), UIAlertAction::Style::Default);
            QCOMPARE(alert->textFields().size(), row.fields.size());
            for (std::size_t i = 0; i < row.fields.size(); ++i) {
                const UITextField &field = *alert->textFields()[i];
                QCOMPARE(field.placeholder(), QString::fromUtf16(row.fields[i].first));
                QVERIFY(field.inputTraits() == row.fields[i].second);
                QCOMPARE(field.borderStyle(), UITextField::BorderStyle::RoundedRect);
            }
        }
    }

    void theKeyboardFollowsReturnAndTaps()
    {
        TestApp app;
        app.launch();
        WZTLoginViewController &screen = login(app);
        QVERIFY(screen.emailTextField()->isFirstResponder());
        QVERIFY(screen.isModalInPresentation());
        screen.emailTextField()->returnPressed();
        QVERIFY(screen.passwordTextField()->isFirstResponder());
        screen.view()->tapped();
        QCOMPARE(app.application().firstResponder(), nullptr);
        screen.emailTextField()->becomeFirstResponder();
        screen.view()->tapped();
        QCOMPARE(app.application().firstResponder(), nullptr);
    }

    void twoTapsAreTwoRequests()
    {
        TestApp app;
        app.launch();
        app.service().stage("/login.php", sandbox::Fault::json(result("Incorrect")));
        app.service().stage("/login.php",
                            sandbox::Fault::json(aUser).after(std::chrono::milliseconds(150)));
        signIn(app, u"jo"_s);
        QTRY_COMPARE(app.service().requests().size(), 1);
        login(app).loginButton()->activate();
        QTRY_VERIFY(app.top<UIAlertController>());
        // The second one signs in while the first one's alert is still up: both go.
        QTRY_COMPARE(app.top<WZTTabBarController>(), app.delegate().tabController());
        QCOMPARE(app.service().requests().size(), 2);
    }

    void looksByVersion_data()
    {
        QTest::addColumn<double>("version");
        QTest::addColumn<UIColor>("background");
        QTest::addColumn<UIColor>("card");
        QTest::addColumn<UIColor>("text");
        QTest::addColumn<UIColor>("placeholder");
        QTest::addColumn<UIColor>("line");
        QTest::addColumn<bool>("continuous");
        const auto drawn = [](const UIColor &color) {
            const QColor c = color.drawn(true);
            return UIColor::colorWithRed(c.redF(), c.greenF(), c.blueF(), c.alphaF());
        };
        QTest::newRow("10") << 10.0 << drawn(UIColor::colorWithRed(0.949, 0.945, 0.965, 1))
                            << drawn(UIColor::whiteColor()) << drawn(UIColor::blackColor())
                            << drawn(UIColor::lightGrayColor()) << drawn(UIColor::grayColor())
                            << false;
        QTest::newRow("13") << 13.0 << drawn(UIColor::systemGroupedBackgroundColor())
                            << drawn(UIColor::secondarySystemGroupedBackgroundColor())
                            << drawn(UIColor::labelColor()) << drawn(UIColor::tertiaryLabelColor())
                            << drawn(UIColor::separatorColor()) << true;
    }

    void looksByVersion()
    {
        QFETCH(const double, version);
        TestApp app;
        app.launch();
        app.application().traits().setSystemVersion(version);
        const auto screen = make<WZTLoginViewController>();
        screen->loadViewIfNeeded();
        const auto matches = [](const UIColor &color, const char *column) {
            const auto *expected =
                static_cast<UIColor *>(QTest::qData(column, qMetaTypeId<UIColor>()));
            return color.drawn(true) == expected->drawn(true);
        };
        QVERIFY(matches(screen->view()->backgroundColor(), "background"));
        QVERIFY(matches(screen->formContainer()->backgroundColor(), "card"));
        QVERIFY(matches(screen->headerLabel()->textColor(), "text"));
        QTEST(screen->formContainer()->layer().cornerCurve == CALayer::CornerCurve::Continuous,
              "continuous");
        QCOMPARE(screen->formContainer()->layer().cornerRadius, 12);
        QCOMPARE(screen->headerLabel()->font().pointSize(), 22);
        QCOMPARE(screen->forgotPasswordButton()->titleFont().pointSize(), 13);
        for (UITextField *field : {screen->emailTextField(), screen->passwordTextField()}) {
            QVERIFY(matches(field->textColor(), "text"));
            QVERIFY(matches(field->placeholderColor(), "placeholder"));
            QVERIFY(matches(field->layer().borderColor, "line"));
            QCOMPARE(field->layer().borderWidth, 2);
            QCOMPARE(field->layer().cornerRadius, 12);
            QCOMPARE(field->leftViewWidth(), 14);
        }
        using Capitals = UITextAutocapitalizationType;
        QVERIFY(screen->emailTextField()->inputTraits()
                == (UITextInputTraits{.keyboardType = UIKeyboardType::EmailAddress,
                                      .autocapitalizationType = Capitals::None,
                                      .textContentType = UITextContentType::EmailAddress}));
        QVERIFY(
            screen->passwordTextField()->inputTraits()
            == (UITextInputTraits{.keyboardType = UIKeyboardType::ASCIICapable,
                                  .autocapitalizationType = Capitals::None,
                                  .textContentType = version < 11 ? UITextContentType::Unspecified
                                                                  : UITextContentType::Password,
                                  .secureTextEntry = true}));
    }
};

WZT_TEST(LoginTest)
#include "LoginTest.moc"
