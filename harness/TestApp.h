// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SharedObjects.h"
#include "app/WZTTabBarController.h"
#include "harness/RecordingHost.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/presentation/UIWindow.h"
#include "sandbox/Sandbox.h"
#include "screens/login/WZTLoginViewController.h"

#include <QTemporaryDir>

#include <memory>

/// The application as it really is, over a service, a configuration folder and a machine of its
/// own: every test of a screen starts here.
///
///     TestApp app;                                      // nobody is signed in
///     app.service().addAccount({.email = ..., .name = ...}, u"secret"_s);
///     app.launch();
///     auto *login = app.top<WZTLoginViewController>();
class TestApp {
public:
    TestApp();
    /// Ends the run as the application ends.
    ~TestApp();
    Q_DISABLE_COPY_MOVE(TestApp)

    /// Starts the application; ends the run before it, if there is one, as its end of the process
    /// would.
    void launch();
    /// The same for somebody who has an account, its password "secret", and is signed in.
    void launchSignedIn(const WZTUser &user = {1, QStringLiteral("jo@wzt.example"),
                                               QStringLiteral("Jo")});
    /// Ends the run; nothing below `delegate()` may be used until the next launch.
    void quit();

    /// Has `user` in the user defaults, as a run before would have left it. Before `launch`.
    void keepUser(const WZTUser &user) { keepData(archived(user)); }
    void keepData(const QByteArray &data);
    void forgetUser();
    /// The data in the user defaults for the next start.
    [[nodiscard]] std::optional<QByteArray> keptData() const;
    [[nodiscard]] static QByteArray archived(const WZTUser &user);

    [[nodiscard]] sandbox::Sandbox &service() { return m_service; }
    [[nodiscard]] RecordingHost &host() { return m_host; }
    /// For the next launch.
    [[nodiscard]] NSURLSessionConfiguration &urlSession() { return m_settings.urlSession; }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    [[nodiscard]] UIApplication &application() { return m_shared->application(); }
    [[nodiscard]] AppDelegate &delegate() { return m_shared->delegate(); }
    /// The topmost controller of the window, alerts included; null when it is no `Controller`.
    template <typename Controller = UIViewController>
    [[nodiscard]] Controller *top()
    {
        return qobject_cast<Controller *>(delegate().window()->presentation()->top());
    }
    /// Login, with or without an alert over it.
    [[nodiscard]] WZTLoginViewController &login()
    {
        const auto controllers = delegate().window()->presentation()->controllers();
        return dynamic_cast<WZTLoginViewController &>(*controllers.at(1));
    }
    /// The topmost alert as "title|message|field|...|action|...", brackets around the
    /// action of the cancel style. Empty when the topmost is no alert.
    [[nodiscard]] QString alert();

private:
    [[nodiscard]] NSUserDefaults defaults() const;

    QTemporaryDir m_folder;
    RecordingHost m_host;
    sandbox::Sandbox m_service{{.hashMemory = 8192, .hashPasses = 1}};
    SharedObjects::Settings m_settings;
    std::unique_ptr<SharedObjects> m_shared;
};
