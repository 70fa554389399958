// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/base/Make.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "screens/issues/WZTRootIssueViewController.h"

using namespace Qt::StringLiterals;

namespace {

using Capitals = UITextAutocapitalizationType;
using Content = UITextContentType;
using Correction = UITextAutocorrectionType;
using Keyboard = UIKeyboardType;

// Whether somebody is signed in, how an alert is asked for, the alert, and its fields' keyboards.
using Alert =
    std::tuple<const char *, bool, void (*)(TestApp &), QString, std::vector<UITextInputTraits>>;

bool isDrawnAs(const UIColor &color, const UIColor &expected)
{
    return color.toQColor(true) == expected.toQColor(true);
}

using User = std::optional<WZTUser>;

const WZTUser jo(7, u"jo@wzt.example"_s, u"Jo"_s);
const QString unknown = u"Error|An unknown error occured."_s;
const QString noAccount = u"Error|An account was not found for the supplied email."_s;
// The screen closes without a message.
const QString closes = u"closes"_s;

struct Operation {
    const char *name;
    bool signedIn;
    void (*report)(TestApp &app, NSUInteger code, const User &user);
    std::optional<NSUInteger> userCode; // the code that may come with a user
    QStringList outcomes; // by code: an alert's title and message, or `closes`, or nothing
};

} // namespace

/// What the screens show: their alerts, and those that answer every code of an operation, with and
/// without a user; colours; keyboards of fields.
class LooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void alertFields_data()
    {
        const auto lines = Capitals::Sentences;
        const UITextInputTraits name{Keyboard::ASCIICapable, lines, Correction::Yes, Content::Name};
        const UITextInputTraits email{Keyboard::EmailAddress, lines, Correction::No,
                                      Content::EmailAddress};
        const auto secret = [](Correction correction, Content content) {
            return UITextInputTraits{Keyboard::Default, lines, correction, content, true};
        };
        addCases<Alert>({
            {"reset",
             false,
             [](TestApp &app) { app.login().forgotPasswordButton()->activate(); },
             u"Reset Password||Email|(Dismiss)|Reset"_s,
             {email}},
            {"registration",
             false,
             [](TestApp &app) { app.login().registerButton()->activate(); },
             u"New Account||Name|Email|Password|(Dismiss)|Register"_s,
             {name, email, secret(Correction::Default, Content::NewPassword)}},
            {"update",
             true,
             [](TestApp &app) { app.delegate().userVC()->editProfile(nullptr); },
             u"Update Account||Jo|New Password|Current Password|(Dismiss)|Update"_s,
             {name, secret(Correction::No, Content::NewPassword),
              secret(Correction::Default, Content::Password)}},
        });
    }

    void alertFields()
    {
        const auto &[name, signedIn, ask, alert, traits] = currentCase<Alert>();
        for (const double version : {11, 12}) {
            TestApp app;
            signedIn ? app.launchSignedIn() : app.launch();
            app.application().traits().setSystemVersion(version);
            ask(app);
            QCOMPARE(app.alert(), alert);
            QCOMPARE(app.host().taps, 1);
            for (std::size_t i = 0; i < traits.size(); ++i) {
                const UITextField &field = *app.top<UIAlertController>()->textFields()[i];
                UITextInputTraits expected = traits[i];
                if (expected.secureTextEntry && version < 12) {
                    expected.textContentType = Content::Unspecified;
                }
                QVERIFY2(field.inputTraits() == expected, qPrintable(field.placeholder()));
                QCOMPARE(field.borderStyle(), UITextField::BorderStyle::RoundedRect);
            }
        }
    }

    void everyCode_data()
    {
        addCases<Operation>({
            {"sign-in",
             false,
             [](TestApp &app, auto code, auto &user) { app.login().loginCompleted(code, user); },
             1,
             {u"Error|Account details did not match any account"_s,
              closes,
              noAccount,
              unknown,
              {}}},
            {"reset",
             false,
             [](TestApp &app, auto code, auto &) { app.login().resetCompleted(code); },
             {},
             {u"Great!|A reset email has been sent."_s,
              u"Error|An account doesn't exists for this email."_s,
              unknown,
              u"Error|There was an error sending reset email"_s,
              {}}},
            {"registration",
             false,
             [](TestApp &app, auto code, auto &user) {
                 app.login().registrationCompleted(code, user);
             },
             2,
             {u"Error|An account already exists for this email."_s,
              u"Error|Account request couldn't be made at this time."_s,
              closes,
              u"Error|Received an unexpected response from server."_s,
              unknown,
              {}}},
            {"update",
             true,
             [](TestApp &app, auto code, auto &user) {
                 app.delegate().userVC()->updateCompleted(code, user, jo.email);
             },
             1,
             {u"Error|Entered password did not match this account"_s,
              u"Great!|Account successfully updated."_s,
              noAccount,
              unknown,
              {}}},
        });
    }

    void everyCode()
    {
        const Operation &operation = currentCase<Operation>();
        const WZTUser updated(7, jo.email, u"Joanna"_s);
        const User before = operation.signedIn ? User(jo) : User();
        TestApp app;
        for (const User &user : {User(), User(updated)}) {
            for (NSUInteger code = 0; code < NSUInteger(operation.outcomes.size()); ++code) {
                if (user && code != operation.userCode) {
                    continue;
                }
                operation.signedIn ? app.keepUser(jo) : app.forgetUser();
                app.launch();
                const QPointer<UIViewController> screen = app.top();
                operation.report(app, code, user);
                const QString &outcome = operation.outcomes[static_cast<qsizetype>(code)];
                const bool shows = !outcome.isEmpty() && outcome != closes;
                QCOMPARE(app.alert(), shows ? outcome + u"|(Dismiss)"_s : QString());
                QVERIFY(shows || (app.top() == screen) == outcome.isEmpty());
                QVERIFY(app.delegate().currentUser() == (user ? user : before));
            }
        }
    }

    void screens()
    {
        TestApp app;
        app.launch();
        const auto account = make<WZTUserViewController>();
        const auto projects = make<WZTRootIssueViewController>();
        const auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front());
        for (UIViewController *screen : std::initializer_list<UIViewController *>{
                 account.get(), projects.get(), issues.get(), &app.login()}) {
            screen->loadViewIfNeeded();
            QVERIFY(isDrawnAs(screen->view()->backgroundColor(),
                              UIColor::systemGroupedBackgroundColor()));
        }
        QVERIFY(!account->tableView()->drawsSeparators());
        QVERIFY(isDrawnAs(app.login().formContainer()->backgroundColor(),
                          UIColor::secondarySystemGroupedBackgroundColor()));
        QVERIFY(isDrawnAs(app.login().headerLabel()->textColor(), UIColor::labelColor()));
        const std::pair<UITextField *, UITextInputTraits> fields[] = {
            {app.login().emailTextField(),
             {Keyboard::EmailAddress, Capitals::None, Correction::Default, Content::EmailAddress}},
            {app.login().passwordTextField(),
             {Keyboard::ASCIICapable, Capitals::None, Correction::Default, Content::Password,
              true}},
        };
        for (const auto &[field, traits] : fields) {
            QVERIFY(isDrawnAs(field->textColor(), UIColor::labelColor()));
            QVERIFY(isDrawnAs(field->placeholderColor(), UIColor::tertiaryLabelColor()));
            QVERIFY(isDrawnAs(field->layer().borderColor, UIColor::separatorColor()));
            QVERIFY(field->inputTraits() == traits);
        }
    }
};

WZT_TEST(LooksTest)
#include "LooksTest.moc"
