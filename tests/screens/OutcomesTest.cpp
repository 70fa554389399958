// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/base/Make.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "tests/screens/LoginScreen.h"

using namespace Qt::StringLiterals;

namespace {

using User = std::optional<WZTUser>;

const WZTUser jo(7, u"jo@wzt.example"_s, u"Jo"_s);
const QString unknown = u"Error|An unknown error occured."_s;
const QString noAccount = u"Error|An account was not found for the supplied email."_s;
const QString failed = u"Submission Error|There was a problem submitting your issue. "
                       "If this persists, let WZT know."_s;
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

/// The screens' answer to every code of their operations, with and without a user.
class OutcomesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCode_data()
    {
        addCases<Operation>({
            {"sign-in",
             false,
             [](TestApp &app, auto code, auto &user) { login(app).loginCompleted(code, user); },
             1,
             {u"Error|Account details did not match any account"_s,
              closes,
              noAccount,
              unknown,
              {}}},
            {"reset",
             false,
             [](TestApp &app, auto code, auto &) { login(app).resetCompleted(code); },
             {},
             {u"Great!|A reset email has been sent."_s,
              u"Error|An account doesn't exists for this email."_s,
              unknown,
              u"Error|There was an error sending reset email"_s,
              {}}},
            {"registration",
             false,
             [](TestApp &app, auto code, auto &user) {
                 login(app).registrationCompleted(code, user);
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
            {"submission",
             true,
             [](TestApp &app, auto code, auto &) {
                 const auto form =
                     make<WZTIssueReporterViewController>(WZTPackage::allPackages().front());
                 app.top()->presentViewController(form, false);
                 form->submissionCompleted(code);
             },
             {},
             {u"Submission Success|Thank you for submitted an issue report"_s, failed, failed}},
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
};

WZT_TEST(OutcomesTest)
#include "OutcomesTest.moc"
