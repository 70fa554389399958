// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/WZTTabBarController.h"
#include "platform/uikit/Make.h"
#include "platform/uikit/UIAlertController.h"
#include "screens/WZTLoginViewController.h"
#include "service/TavloCategoryExtension.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

using namespace Qt::StringLiterals;
using sandbox::Fault;

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

Fault result(const char *text)
{
    return Fault::json(R"({"result":")" + QByteArray(text) + R"("})", 500);
}

struct Ending {
    const char *name;
    Flow flow;
    QByteArray path;
    Fault reply;
    QString message;
    QString title = u"Error"_s;
};
using Looks = std::tuple<const char *, double, UIColor, UIColor, UIColor, UIColor, UIColor, bool>;
using Sent = std::tuple<const char *, Flow, QString, QByteArray>;

} // namespace

/// The sign-in screen's flows, from a touch to the service and back.
class LoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        const char *in = "/login.php";
        const char *forgotten = "/passwordreset.php";
        const char *up = "/register.php";
        const QString unknown = u"An unknown error occured."_s;
        addCases<Ending>({
            {"wrong password", signIn, in, result("Incorrect"),
             u"Account details did not match any account"_s},
            {"unknown address", signIn, in, result("User Does Not Exist"),
             u"An account was not found for the supplied email."_s},
            {"nonsense", signIn, in, Fault::json("<html>"), unknown},
            {"lost", signIn, in, Fault::close(), unknown},
            {"signed in", signIn, in, Fault::json(aUser, 500), {}, {}},
            {"reset sent", reset, forgotten, result("Message has been sent"),
             u"A reset email has been sent."_s, u"Great!"_s},
            {"reset not sent", reset, forgotten, result("Message could not be sent"),
             u"There was an error sending reset email"_s},
            {"reset nonsense", reset, forgotten, Fault::json(aUser), unknown},
            {"reset lost", reset, forgotten, Fault::close(), unknown},
            {"address taken", signUp, up, result("User Exists"),
             u"An account already exists for this email."_s},
            {"improper", signUp, up, result("Improper request"),
             u"Account request couldn't be made at this time."_s},
            {"unexpected", signUp, up, result("user exists"),
             u"Received an unexpected response from server."_s},
            {"registration lost", signUp, up, Fault::close(), unknown},
            {"registered", signUp, up, Fault::json(aUser, 500), {}, {}},
        });
    }

    void outcomes()
    {
        const auto &[name, flow, path, reply, message, title] = currentCase<Ending>();
        TestApp app;
        app.launch();
        app.service().stage(path, reply);

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
        QCOMPARE(alert->message(), message);
        QCOMPARE(alert->actions().size(), std::size_t(1));
        QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
        QVERIFY(!login(app).activityIndicator()->isAnimating());
        QVERIFY(!app.delegate().currentUser());
    }

    void whatIsSent_data()
    {
        const auto digest = [](const QString &text) { return SHA256(text).toLatin1(); };
        addCases<Sent>({
            {"sign-in trims both fields", signIn, u" \u00a0jo\n"_s,
             "/login.php?userEmail=jo&userPassword=" + digest(u"jo"_s)},
            {"registration sends as typed", signUp, u" jo "_s,
             "/register.php?userEmail=%20jo%20&userPassword=" + digest(u" jo "_s)
                 + "&userName=%20jo%20"},
            {"registration sends empty fields",
             signUp,
             {},
             "/register.php?userEmail=&userPassword=" + digest({}) + "&userName="},
            {"reset sends as typed", reset, u" jo "_s, "/passwordreset.php?userEmail=%20jo%20"},
            {"reset sends an empty field", reset, {}, "/passwordreset.php?userEmail="},
        });
    }

    void whatIsSent()
    {
        const auto &[name, flow, text, target] = currentCase<Sent>();
        TestApp app;
        app.launch();
        flow(app, text);
        QTRY_COMPARE(app.service().requests().size(), 1);
        QCOMPARE(app.service().requests().constFirst().target, target);
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
        const std::tuple<void (*)(Screen &), QString, bool> rows[] = {
            {[](Screen &screen) { screen.loginEnded(1, std::nullopt); }, {}, true},
            {[](Screen &screen) { screen.registrationEnded(2, std::nullopt); }, {}, true},
            {[](Screen &screen) { screen.loginEnded(4, std::nullopt); }, {}, false},
            {[](Screen &screen) { screen.registrationEnded(5, std::nullopt); }, {}, false},
            {[](Screen &screen) { screen.resetEnded(4); }, {}, false},
            {[](Screen &screen) { screen.resetEnded(1); },
             u"An account doesn't exists for this email."_s, false},
        };
        for (const auto &[end, message, leaves] : rows) {
            TestApp app;
            app.launch();
            end(login(app));
            QCOMPARE(app.top<WZTTabBarController>() != nullptr, leaves);
            const auto *alert = app.top<UIAlertController>();
            QCOMPARE(alert ? alert->message() : QString(), message);
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
        using Screen = WZTLoginViewController;
        using Fields = std::vector<std::pair<QString, UITextInputTraits>>;
        const auto signUpButton = &Screen::registerButton;
        const Fields fields{{u"Name"_s, name}, {u"Email"_s, email}, {u"Password"_s, password}};
        const Fields before{{u"Name"_s, name}, {u"Email"_s, email}, {u"Password"_s, older}};
        const std::tuple<double, UIButton *(Screen::*)(), QString, QString, Fields> rows[] = {
            {12, signUpButton, u"New Account"_s, u"Register"_s, fields},
            {11, signUpButton, u"New Account"_s, u"Register"_s, before},
            {12, &Screen::forgotPasswordButton, u"Reset Password"_s, u"Reset"_s, {fields[1]}},
        };
        for (const auto &[version, button, title, action, expected] : rows) {
            TestApp app;
            app.launch();
            app.application().traits().setSystemVersion(version);
            (login(app).*button)()->activate();
            const auto *alert = app.top<UIAlertController>();
            QCOMPARE(alert->title(), title);
            QCOMPARE(alert->message(), QString());
            QCOMPARE(alert->actions().size(), std::size_t(2));
            QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
            QCOMPARE(alert->actions()[0]->style(), UIAlertAction::Style::Cancel);
            QCOMPARE(alert->actions()[1]->title(), action);
            QCOMPARE(alert->actions()[1]->style(), UIAlertAction::Style::Default);
            QCOMPARE(alert->textFields().size(), expected.size());
            for (std::size_t i = 0; i < expected.size(); ++i) {
                const UITextField &field = *alert->textFields()[i];
                QCOMPARE(field.placeholder(), expected[i].first);
                QVERIFY(field.inputTraits() == expected[i].second);
                QCOMPARE(field.borderStyle(), UITextField::BorderStyle::RoundedRect);
            }
        }
    }

    void twoTapsAreTwoRequests()
    {
        TestApp app;
        app.launch();
        app.service().stage("/login.php", result("Incorrect"));
        app.service().stage("/login.php", Fault::json(aUser).after(std::chrono::milliseconds(150)));
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
        addCases<Looks>({
            {"10", 10, UIColor::colorWithRed(0.949, 0.945, 0.965, 1), UIColor::whiteColor(),
             UIColor::blackColor(), UIColor::lightGrayColor(), UIColor::grayColor(), false},
            {"13", 13, UIColor::systemGroupedBackgroundColor(),
             UIColor::secondarySystemGroupedBackgroundColor(), UIColor::labelColor(),
             UIColor::tertiaryLabelColor(), UIColor::separatorColor(), true},
        });
    }

    void looksByVersion()
    {
        const auto &[name, version, background, card, text, placeholder, line, continuous] =
            currentCase<Looks>();
        TestApp app;
        app.launch();
        app.application().traits().setSystemVersion(version);
        const auto screen = make<WZTLoginViewController>();
        screen->loadViewIfNeeded();
        QVERIFY(screen->isModalInPresentation());
        QCOMPARE(screen->view()->backgroundColor().drawn(true), background.drawn(true));
        QCOMPARE(screen->formContainer()->backgroundColor().drawn(true), card.drawn(true));
        QCOMPARE(screen->headerLabel()->textColor().drawn(true), text.drawn(true));
        QCOMPARE(screen->formContainer()->layer().cornerCurve == CALayer::CornerCurve::Continuous,
                 continuous);
        for (UITextField *field : {screen->emailTextField(), screen->passwordTextField()}) {
            QCOMPARE(field->textColor().drawn(true), text.drawn(true));
            QCOMPARE(field->placeholderColor().drawn(true), placeholder.drawn(true));
            QCOMPARE(field->layer().borderColor.drawn(true), line.drawn(true));
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
