// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/screens/ScreenStage.h"

#include "sandbox/DemoIssues.h"

using namespace Qt::StringLiterals;

namespace {

const Screen &screenNamed(const char *name)
{
    const auto isNamed = [name](const Screen &each) { return qstrcmp(each.name, name) == 0; };
    const auto found = std::ranges::find_if(allScreens(), isNamed);
    if (found == allScreens().end()) {
        qFatal("no screen %s", name);
    }
    return *found;
}

} // namespace

const std::vector<Screen> &allScreens()
{
    static const std::vector<Screen> screens{
        {"Login", false, "", "Email, Password, Login, Forgot Password?, Need an Account?", "Login",
         "Login"},
        {"Home", true, "", "rows, Home, Account", "Bug Reporter", "Bug Reporter"},
        {"projects", true, "Bug Reporter", "rows, Home, Account, Back to Home", "Bug Reporter",
         "Bug Reporter"},
        {"issues", true, "Bug Reporter|Pintle", "rows, Cancel, Add", "Marrow!", "Pintle Issues"},
        {"new issue", true, "Bug Reporter|Pintle|Add", "Title, Notes, Cancel, Submit",
         "Pintle Issues", "New Issue"},
        {"Account", true, "Account", "rows, Update, Logout, Home, Account", "Logout", "Logout"},
        {"alert", true, "Account|Update", "Name, New Password, Current Password, Dismiss, Update",
         "Logout", "Update Account"},
    };
    return screens;
}

QRectF painted(const QQuickItem *item)
{
    QRectF area(0, 0, item->width(), item->height());
    const auto number = [item](const char *name) { return item->property(name).toDouble(); };
    const auto shrink = [](double whole, double part, bool atStart, bool atEnd) {
        const double room = part > 0 ? qMax(0.0, whole - part) : 0;
        return std::pair(atStart ? 0 : atEnd ? room : room / 2, whole - room);
    };
    const int across = item->property("effectiveHorizontalAlignment").toInt();
    const int along = item->property("verticalAlignment").toInt();
    const auto [x, width] = shrink(area.width(), number("contentWidth"), across == Qt::AlignLeft,
                                   across == Qt::AlignRight);
    const auto [y, height] = shrink(area.height(), number("contentHeight"), along == Qt::AlignTop,
                                    along == Qt::AlignBottom);
    return item->mapRectToScene({x, y, width, height});
}

ScreenStage::ScreenStage(const Screen &screen, const Options &options)
{
    if (!service().addIssues(sandbox::demoIssues())) {
        qFatal("no issues");
    }
    screen.signedIn ? launchSignedIn(options.user) : launch();
    open(*delegate().window(), options.size, options.appearance);
    for (const QString &name : QString::fromLatin1(screen.path).split(u'|', Qt::SkipEmptyParts)) {
        settle();
        press(name);
    }
    settle();
    if (accessible(u"Loading"_s)) { // or rows would come while they are looked at
        QTRY_VERIFY(!accessible(u"Loading"_s));
    }
    host().taps = 0; // those on the way
}

ScreenStage::ScreenStage(const char *screen, const Options &options)
    : ScreenStage(screenNamed(screen), options)
{
}

ScreenStage::~ScreenStage()
{
    close();
}
