// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "screens/issues/WZTRootIssueViewController.h"
#include "tests/screens/LoginScreen.h"

using namespace Qt::StringLiterals;

namespace {

using Capitals = UITextAutocapitalizationType;
using Content = UITextContentType;
using Correction = UITextAutocorrectionType;
using Keyboard = UIKeyboardType;

// An alert, and its fields' keyboard traits.
struct Alert {
    const char *name;
    bool signedIn;
    void (*ask)(TestApp &app);
    QString alert;
    std::vector<UITextInputTraits> traits;
};

bool isDrawnAs(const UIColor &color, const UIColor &expected)
{
    return color.toQColor(true) == expected.toQColor(true);
}

} // namespace

/// Colours of the screens, keyboards of their fields.
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
             [](TestApp &app) { login(app).forgotPasswordButton()->activate(); },
             u"Reset Password||Email|(Dismiss)|Reset"_s,
             {email}},
            {"registration",
             false,
             [](TestApp &app) { login(app).registerButton()->activate(); },
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

    void screens()
    {
        TestApp app;
        app.launch();
        const auto account = make<WZTUserViewController>();
        const auto projects = make<WZTRootIssueViewController>();
        const auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front());
        for (UIViewController *screen : std::initializer_list<UIViewController *>{
                 account.get(), projects.get(), issues.get(), &login(app)}) {
            screen->loadViewIfNeeded();
            QVERIFY(isDrawnAs(screen->view()->backgroundColor(),
                              UIColor::systemGroupedBackgroundColor()));
        }
        QVERIFY(!account->tableView()->drawsSeparators());
        QVERIFY(isDrawnAs(login(app).formContainer()->backgroundColor(),
                          UIColor::secondarySystemGroupedBackgroundColor()));
        QVERIFY(isDrawnAs(login(app).headerLabel()->textColor(), UIColor::labelColor()));
        const std::pair<UITextField *, UITextInputTraits> fields[] = {
            {login(app).emailTextField(),
             {Keyboard::EmailAddress, Capitals::None, Correction::Default, Content::EmailAddress}},
            {login(app).passwordTextField(),
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
