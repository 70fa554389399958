// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/screens/ScreenStage.h"

#include "sandbox/DemoIssues.h"
#include "tests/support/WindowDriver.h"

#include <QTest>

using namespace Qt::StringLiterals;

const std::vector<Screen> &allScreens()
{
    static const std::vector<Screen> screens{
        {"Login",
         false,
         {},
         u"Email, Password, Login, Forgot Password?, Need an Account?"_s,
         u"Login"_s,
         u"Login"_s},
        {"Home", true, {}, u"rows, Home, Account"_s, u"Bug Reporter"_s, u"Bug Reporter"_s},
        {"projects",
         true,
         {u"Bug Reporter"_s},
         u"rows, Home, Account, Back to Home"_s,
         u"Bug Reporter"_s,
         u"Bug Reporter"_s},
        {"issues",
         true,
         {u"Bug Reporter"_s, u"Pintle"_s},
         u"rows, Cancel, Add"_s,
         u"Marrow!"_s,
         u"Pintle Issues"_s},
        {"new issue",
         true,
         {u"Bug Reporter"_s, u"Pintle"_s, u"Add"_s},
         u"Title, Notes, Cancel, Submit"_s,
         u"Pintle Issues"_s,
         u"New Issue"_s},
        {"Account",
         true,
         {u"Account"_s},
         u"rows, Update, Logout, Home, Account"_s,
         u"Logout"_s,
         u"Logout"_s},
        {"alert",
         true,
         {u"Account"_s, u"Update"_s},
         u"Name, New Password, Current Password, Dismiss, Update"_s,
         u"Logout"_s,
         u"Update Account"_s},
    };
    return screens;
}

ScreenStage::ScreenStage(const Screen &screen, const Options &options)
{
    if (screen.signedIn) {
        app.keepUser(options.user);
    }
    if (!app.service().addIssues(sandbox::demoIssues())) {
        qFatal("no issues");
    }
    app.launch();
    window.emplace(app, options.size,
                   DesktopAppearance{.textScale = options.textScale, .reduceMotion = true});
    for (const QString &name : screen.path) {
        window->settle();
        accessible(name)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    window->settle();
    if (accessible(u"Loading"_s)) { // or rows would come while they are looked at
        QTRY_VERIFY(!accessible(u"Loading"_s));
    }
}

QAccessibleInterface *ScreenStage::accessible(const QString &name)
{
    return WindowDriver::accessible(window->view(), name);
}
