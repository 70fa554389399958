// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "app/QueryString.h"
#include "app/WZTTabBarController.h"
#include "platform/foundation/base/NSLog.h"
#include "platform/foundation/coding/NSKeyedArchiver.h"
#include "platform/foundation/coding/NSKeyedUnarchiver.h"
#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UIWindow.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/login/WZTLoginViewController.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto currentUserKey = "currentUser"_L1;

/// A tab without a title; screen readers say `name`.
std::unique_ptr<UITabBarItem> tabBarItem(const QString &image, int tag, const QString &name)
{
    auto item = std::make_unique<UITabBarItem>(QString(), UIImage::imageNamed(image), tag);
    item->setAccessibilityLabel(name);
    return item;
}

} // namespace

AppDelegate::AppDelegate(const QString &applicationId, const QString &folder)
    : m_defaults(applicationId, folder)
{
    WZTSession::install(this);
}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::didFinishLaunchingWithOptions()
{
    m_window = std::make_unique<UIWindow>();
    m_window->makeKeyAndVisible();
    // The setter would write the user back.
    m_currentUser = restoredUser();
    makeTabs();
    m_window->setRootViewController(m_tabController);
    if (!m_currentUser) {
        presentLogin(false);
    }
    return true;
}

void AppDelegate::makeTabs()
{
    m_tabController = make<WZTTabBarController>();
    m_rootVC = make<WZTRootViewController>();
    m_rootVC->setTabBarItem(tabBarItem(u"home"_s, 0, u"Home"_s));
    m_userVC = make<WZTUserViewController>();
    m_userVC->setTabBarItem(tabBarItem(u"user"_s, 1, u"Account"_s));
    m_tabController->setViewControllers(
        {make<UINavigationController>(m_rootVC), make<UINavigationController>(m_userVC)});
}

// Data that is not an archive of a user stays until the next sign-in replaces it.
std::optional<WZTUser> AppDelegate::restoredUser() const
{
    const auto data = m_defaults.dataForKey(currentUserKey);
    if (!data) {
        return std::nullopt;
    }
    const auto coder = NSKeyedUnarchiver::unarchiveObjectWithData(*data, WZTUser::className);
    return coder ? std::optional(WZTUser::initWithCoder(*coder)) : std::nullopt;
}

bool AppDelegate::openURL(const QString &)
{
    return true;
}

void AppDelegate::setCurrentUser(const WZTUser &user)
{
    m_currentUser = user;
    const auto data =
        NSKeyedArchiver::archivedDataWithRootObject(*m_currentUser, WZTUser::className);
    if (!data) {
        NSLog(u"The user's record cannot be archived and is not kept."_s);
        removeStoredUser();
        return;
    }
    // Without a writable file the user stays signed in until the application ends.
    if (!m_defaults.setObject(data, currentUserKey)) {
        removeStoredUser();
    }
    reloadTabs();
}

void AppDelegate::reloadTabs()
{
    for (const auto &tab : m_tabController->viewControllers()) {
        const auto navigation = std::static_pointer_cast<UINavigationController>(tab);
        const auto screen =
            std::static_pointer_cast<UITableViewController>(navigation->viewControllers().front());
        screen->tableView()->reloadData();
    }
}

void AppDelegate::logout()
{
    m_currentUser = std::nullopt;
    removeStoredUser();
    m_rootVC->tableView()->reloadData();
    m_userVC->tableView()->reloadData();
    m_tabController->setSelectedIndex(0);
    presentLogin(true);
}

// The next start must not restore a user who has signed out or has been replaced.
void AppDelegate::removeStoredUser()
{
    if (!m_defaults.removeObjectForKey(currentUserKey)) {
        NSLog(u"The user's record cannot be removed: the next start finds it."_s);
    }
}

void AppDelegate::presentLogin(bool animated)
{
    m_tabController->presentViewController(make<WZTLoginViewController>(), animated);
}

QMap<QString, QString> AppDelegate::parseQueryString(const QString &query) const
{
    return QueryString::parse(query);
}
