// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/base/Make.h"
#include "service/TavloCategoryExtension.h"

using namespace Qt::StringLiterals;
using sandbox::Fault;

namespace {

constexpr char aUser[] = R"({"userTavloID":42,"userEmail":"jo@wzt.example","userName":"Jo"})";

void answerAlert(TestApp &app, const QString &text)
{
    const auto alert = strong(app.top<UIAlertController>());
    for (const auto &field : alert->textFields()) {
        field->edit(text);
    }
    alert->triggerDefault();
    for (const auto &field : alert->textFields()) {
        QCOMPARE(field->text(), field->isSecureTextEntry() ? QString() : text);
    }
}

const QString typed = u"\u00a0jo "_s;

// Starts a flow with a text in every field, and the request that `typed` makes.
struct Flow {
    void (*start)(TestApp &app, const QString &text);
    QByteArray path;
    QByteArray query;
};

const Flow signIn{[](TestApp &app, const QString &text) {
                      app.login().emailTextField()->edit(text);
                      app.login().passwordTextField()->edit(text);
                      app.login().loginButton()->activate();
                  },
                  "/login.php", "?userEmail=jo&userPassword=" + SHA256(u"jo"_s).toLatin1()};
const Flow reset{[](TestApp &app, const QString &text) {
                     app.login().forgotPasswordButton()->activate();
                     answerAlert(app, text);
                 },
                 "/passwordreset.php", "?userEmail=%C2%A0jo%20"};
const Flow signUp{[](TestApp &app, const QString &text) {
                      app.login().registerButton()->activate();
                      answerAlert(app, text);
                  },
                  "/register.php",
                  "?userEmail=%C2%A0jo%20&userPassword=" + SHA256(typed).toLatin1()
                      + "&userName=%C2%A0jo%20"};

Fault result(const char *text)
{
    return Fault::json(R"({"result":")" + QByteArray(text) + R"("})", 500);
}

// A flow, its reply, and the alert: none for somebody who is signed in.
using Ending = std::tuple<const char *, const Flow *, Fault, QString>;
// A flow, its reply, and whether the user signs out before that comes.
using Late = std::tuple<const char *, const Flow *, Fault, bool>;

} // namespace

/// The sign-in screen's flows, from a touch to the service and back.
class LoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        addCases<Ending>({
            {"signed in", &signIn, Fault::json(aUser, 500), {}},
            {"wrong password", &signIn, result("Incorrect"),
             u"Error|Account details did not match any account|(Dismiss)"_s},
            {"reset sent", &reset, result("Message has been sent"),
             u"Great!|A reset email has been sent.|(Dismiss)"_s},
            {"reset lost", &reset, Fault::close(), u"Error|An unknown error occured.|(Dismiss)"_s},
            {"registered", &signUp, Fault::json(aUser, 500), {}},
            {"address taken", &signUp, result("User Exists"),
             u"Error|An account already exists for this email.|(Dismiss)"_s},
        });
    }

    void outcomes()
    {
        const auto &[name, flow, reply, alert] = currentCase<Ending>();
        TestApp app;
        app.launch();
        app.service().stage(flow->path, reply);
        const auto screen = strong(&app.login());
        flow->start(app, typed);
        QCOMPARE(app.host().taps, 1);
        QVERIFY(app.login().activityIndicator()->isAnimating());
        if (alert.isEmpty()) {
            QTRY_COMPARE(app.top<WZTTabBarController>(), app.delegate().tabController());
            QCOMPARE(app.delegate().currentUser()->tavloId, 42);
        } else {
            QTRY_COMPARE(app.alert(), alert);
            QVERIFY(!app.login().activityIndicator()->isAnimating());
            QVERIFY(!app.delegate().currentUser());
        }
        const bool keepsPassword = flow == &signIn && !alert.isEmpty();
        QCOMPARE(screen->passwordTextField()->text(), keepsPassword ? typed : QString());
        QCOMPARE(app.service().requests().size(), 1);
        QCOMPARE(app.service().requests()[0].target, flow->path + flow->query);
    }

    /// Every request tries to load it again.
    void withoutTheHTTPModule()
    {
        TestApp app;
        app.urlSession().httpModule = app.folder() + "/wzt-http.so"_L1;
        app.launch();
        for (int i = 0; i < 2; ++i) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"wzt-http.so"_s));
            signIn.start(app, typed);
            QTRY_COMPARE(app.alert(), u"Error|An unknown error occured.|(Dismiss)"_s);
            app.top<UIAlertController>()->triggerCancel();
        }
        QCOMPARE(app.service().requests().size(), 0);
    }

    void emptyFieldsAreRefusedOnlyBySignIn()
    {
        TestApp app;
        app.launch();
        for (const auto &[email, password] : {std::pair{u" "_s, u"x"_s}, {u"x"_s, u"\t"_s}}) {
            app.login().emailTextField()->edit(email);
            app.login().passwordTextField()->edit(password);
            app.login().passwordTextField()->returnPressed(); // signs in as the button does
            QCOMPARE(app.alert(), u"Error|Ensure all fields are properly filled.|(Dismiss)"_s);
            app.top<UIAlertController>()->triggerCancel();
        }
        QCOMPARE(app.host().taps, 2);
        QVERIFY(!app.login().activityIndicator()->isAnimating());
        QCOMPARE(app.service().connectionCount(), 0);
        signUp.start(app, {});
        QTRY_COMPARE(app.service().requests().size(), 1);
        QCOMPARE(app.service().requests()[0].target,
                 "/register.php?userEmail=&userPassword=" + SHA256({}).toLatin1() + "&userName=");
    }

    void twoTapsAreTwoRequests()
    {
        TestApp app;
        app.launch();
        app.service().stage("/login.php", result("Incorrect"));
        app.service().stage("/login.php", Fault::json(aUser).after(std::chrono::milliseconds(150)));
        signIn.start(app, u"jo"_s);
        QTRY_COMPARE(app.service().requests().size(), 1);
        app.login().loginButton()->activate();
        QTRY_VERIFY(app.top<UIAlertController>());
        // The second one signs in while the first one's alert is still up: both go.
        QTRY_COMPARE(app.top<WZTTabBarController>(), app.delegate().tabController());
        QCOMPARE(app.service().requests().size(), 2);
    }

    void aReplyToAScreenThatIsGoneIsDropped_data()
    {
        addCases<Late>({
            {"a sign-in, somebody signed in", &signIn, Fault::json(aUser), false},
            {"a sign-in, signed out again", &signIn, Fault::json(aUser), true},
            {"a registration, signed out again", &signUp, Fault::json(aUser), true},
            {"a message", &signIn, result("Incorrect"), true},
        });
    }

    void aReplyToAScreenThatIsGoneIsDropped()
    {
        const auto &[name, flow, reply, signsOut] = currentCase<Late>();
        const WZTUser kim(7, u"kim@wzt.example"_s, u"Kim"_s);
        TestApp app;
        app.launch();
        app.service().stage(flow->path, reply.after(std::chrono::milliseconds(50)));
        flow->start(app, typed);
        const QPointer<WZTLoginViewController> screen = &app.login();
        screen->loginCompleted(1, kim); // the reply to another tap, which is quicker
        if (signsOut) {
            app.delegate().logout();
        }
        // The late reply has come once it no longer keeps the screen.
        QTRY_VERIFY(!screen);
        QCOMPARE(app.delegate().currentUser(), signsOut ? std::nullopt : std::optional(kim));
        QCOMPARE(app.top<WZTLoginViewController>() != nullptr, signsOut);
        QCOMPARE(app.alert(), QString());
        QCOMPARE(app.service().requests().size(), 1);
    }
};

WZT_TEST(LoginTest)
#include "LoginTest.moc"
