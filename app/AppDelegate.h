// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTSession.h"
#include "platform/foundation/storage/NSUserDefaults.h"
#include "platform/uikit/base/UIApplicationDelegate.h"
#include "platform/uikit/base/UIResponder.h"

#include <QMap>

#include <memory>

class UIWindow;
class WZTRootViewController;
class WZTTabBarController;
class WZTUserViewController;

/// Starts the application and holds the signed-in user, who is kept for the next start under
/// "currentUser" of the user defaults. It is the shared session. Main thread only.
class AppDelegate : public UIResponder, public UIApplicationDelegate, public WZTSession {
    Q_OBJECT

public:
    /// `applicationId` and `folder` locate the user defaults; see NSUserDefaults.
    explicit AppDelegate(const QString &applicationId, const QString &folder = QString());
    ~AppDelegate() override;

    /// Shows the tabs, with Login over them when nobody is signed in.
    bool didFinishLaunchingWithOptions() override;
    /// Accepts every URL and does nothing with it.
    bool openURL(const QString &url) override;
    // The application has nothing to do at these changes, and nothing calls them.
    void applicationWillResignActive() override {}
    void applicationDidEnterBackground() override {}
    void applicationWillEnterForeground() override {}
    void applicationDidBecomeActive() override {}
    void applicationWillTerminate() override {}

    // Null before the launch.
    [[nodiscard]] UIWindow *window() const { return m_window.get(); }
    [[nodiscard]] WZTTabBarController *tabController() const { return m_tabController.get(); }
    [[nodiscard]] WZTRootViewController *rootVC() const { return m_rootVC.get(); }
    [[nodiscard]] WZTUserViewController *userVC() const { return m_userVC.get(); }

    [[nodiscard]] const std::optional<WZTUser> &currentUser() const override
    {
        return m_currentUser;
    }
    void setCurrentUser(const WZTUser &user) override;
    void logout() override;

    /// The items of a URL's query; see QueryString.
    [[nodiscard]] QMap<QString, QString> parseQueryString(const QString &query) const;

private:
    [[nodiscard]] std::optional<WZTUser> restoredUser() const;
    void makeTabs();
    void reloadTabs();
    void removeStoredUser();
    void presentLogin(bool animated);

    std::unique_ptr<UIWindow> m_window;
    std::shared_ptr<WZTTabBarController> m_tabController;
    std::shared_ptr<WZTRootViewController> m_rootVC;
    std::shared_ptr<WZTUserViewController> m_userVC;
    std::optional<WZTUser> m_currentUser;
    NSUserDefaults m_defaults;
};
