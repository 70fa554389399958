// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/tour/Pictures.h"

using namespace Qt::StringLiterals;

namespace {

using enum Step::Kind;
using sandbox::Fault;
using Steps = std::vector<Step>;

Steps operator+(Steps first, const Steps &second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Fault result(const char *text)
{
    return Fault::json(R"({"result":")" + QByteArray(text) + R"("})");
}

// By keyboard alone up to the button, which a finger taps.
Steps filled(const QString &email, const QString &password)
{
    return {{Type, email}, {Return}, {Type, password}};
}

Steps signIn(const QString &email, const QString &password)
{
    return filled(email, password) + Steps{{Tap, u"Login"_s}};
}

const Steps reset{{Tap, u"Forgot Password?"_s}, {Await, u"Reset Password"_s}};
const Steps registration{{Tap, u"Need an Account?"_s}, {Await, u"New Account"_s}};
const Steps sendReset = reset + Steps{{Type, u"jo@wzt.example"_s}, {Return}};
const Steps filledAccount = registration
    + Steps{
        {Type, u"Kim"_s}, {Return}, {Type, u"kim@wzt.example"_s}, {Return}, {Type, u"secret"_s}};
const Steps sendAccount = filledAccount + Steps{{Return}};
const Steps error{{Await, u"Error"_s}};
const Steps success{{Await, u"Great!"_s}};
const Steps tabs{{Await, u"Home"_s}};
const Steps projects{{Tap, u"Bug Reporter"_s}, {Await, u"Projects"_s}};
const Steps loading{{Await, u"Loading"_s}};
const Steps loaded{{AwaitEnd, u"Loading"_s}};
const Steps addIssue{{Tap, u"Add"_s}, {Await, u"New Issue"_s}};
const Steps filledForm = addIssue
    + Steps{{Type, u"The badge stays after reading"_s},
            {Return},
            {Type,
             u"1. Open a folder. 2. Close it again. 3. The badge is still there, and it stays "
             u"there until the device is locked and unlocked."_s}};
const Steps sendForm = filledForm + Steps{{Tap, u"Submit"_s}};
const Steps refreshing{{Refresh}, {Await, u"Loading"_s}};
const Steps update{{Tap, u"Update"_s}, {Await, u"Update Account"_s}};
const Steps filledUpdate =
    update + Steps{{Type, u"Joanna"_s}, {Return}, {Type, u"new"_s}, {Return}};
const Steps sendUpdate = filledUpdate + Steps{{Type, u"secret"_s}, {Return}};

} // namespace

std::vector<Picture> allPictures()
{
    const QString jo = u"jo@wzt.example"_s;
    const Steps enter = signIn(jo, u"secret"_s);
    const Steps toAccount = tabs + Steps{{Tap, u"Account"_s}, {Await, u"Account Details"_s}};
    const Steps account = enter + toAccount;
    const Steps list = enter + tabs + projects;
    const Steps issues = list + Steps{{Tap, u"Pintle"_s}} + loaded;
    return {
        {u"login-empty"_s, {{Await, u"Account Login"_s}}},
        {u"login-filled"_s, filled(jo, u"secret"_s)},
        {u"login-keyboard"_s, filled(jo, u"secret"_s) + Steps{{Keyboard}}},
        {u"login-spinner"_s, enter + Steps{{Await, u"Loading"_s}}, "/login.php", Fault::silence()},
        {u"login-fields-missing"_s, Steps{{Tap, u"Login"_s}} + error},
        {u"login-wrong-password"_s, signIn(jo, u"wrong"_s) + error},
        {u"login-unknown-address"_s, signIn(u"nobody@wzt.example"_s, u"secret"_s) + error},
        {u"login-unknown-error"_s, enter + error, "/login.php", Fault::close()},

        {u"reset-empty"_s, reset},
        {u"reset-sent"_s, sendReset + success},
        {u"reset-not-sent"_s, sendReset + error, "/passwordreset.php", result("User Not Found")},
        {u"reset-unknown-error"_s, sendReset + error, "/passwordreset.php", Fault::close()},

        {u"register-empty"_s, registration},
        {u"register-filled"_s, filledAccount},
        {u"register-taken"_s, sendAccount + error, "/register.php", result("User Exists")},
        {u"register-improper"_s, sendAccount + error, "/register.php", result("Improper request")},
        {u"register-unexpected"_s, sendAccount + error, "/register.php", Fault::json("{}")},
        {u"register-unknown-error"_s, sendAccount + error, "/register.php", Fault::close()},

        {u"home"_s, enter + tabs},
        {u"projects"_s, list},
        {u"issues-none"_s, list + Steps{{Tap, u"tessaroo"_s}} + loaded},
        {u"issues-dozen"_s, issues},
        {u"form-empty"_s, issues + addIssue},
        {u"form-missing"_s,
         issues + addIssue + Steps{{Tap, u"Submit"_s}, {Await, u"Validation Error"_s}}},
        {u"form-filled"_s, issues + filledForm},
        {u"form-keyboard"_s, issues + filledForm + Steps{{Keyboard}}},
        {u"form-menu"_s, issues + filledForm + Steps{{Menu}}},
        {u"form-sent"_s, issues + sendForm + Steps{{Await, u"Submission Success"_s}}},
        {u"form-refused"_s, issues + sendForm + Steps{{Await, u"Submission Error"_s}},
         "/submitissue.php", Fault::close()},
        {u"issues-after-form"_s,
         issues + sendForm + Steps{{Await, u"Submission Success"_s}, {Tap, u"Dismiss"_s}} + loaded},
        {u"issues-many"_s, list + Steps{{Tap, u"QELVAN"_s}} + loaded},
        {u"issues-end"_s, issues + Steps{{End}}},
        {u"issues-loading"_s, list + Steps{{Tap, u"Pintle"_s}} + loading, "/issues.php",
         Fault::silence()},
        {u"home-after-registration"_s, sendAccount + tabs},
        {u"account"_s, account},
        {u"account-long"_s, signIn(longEmail.toString(), u"secret"_s) + toAccount},
        {u"account-refreshing"_s, account + refreshing, "/user.php", Fault::silence()},
        {u"update-empty"_s, account + update},
        {u"update-filled"_s, account + filledUpdate},
        {u"update-keyboard"_s, account + filledUpdate + Steps{{Keyboard}}},
        {u"update-nothing"_s, account + update + Steps{{Tap, u"Update"_s}} + error},
        {u"update-done"_s, account + sendUpdate + success},
        {u"update-refused"_s, account + sendUpdate + error, "/update.php", result("Incorrect")},
        {u"account-updated"_s, account + sendUpdate + success + Steps{{Tap, u"Dismiss"_s}}},
        {u"account-signed-out"_s, account + Steps{{Tap, u"Logout"_s}, {Await, u"Account Login"_s}}},
        {u"home-after-restart"_s, enter + tabs + Steps{{Restart}} + tabs},
    };
}
