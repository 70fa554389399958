// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "platform/foundation/url/NSURLSession.h"
#include "platform/uikit/base/UIApplication.h"

/// One run of the application, whatever draws it: the shared URL session, the shared application
/// and its delegate, made in order and ended in order. Needs a Qt application object around it.
class Runtime {
public:
    struct Settings {
        QString applicationId;
        /// Where the user defaults lie; empty for the user's configuration folder.
        QString defaultsFolder;
        NSURLSessionConfiguration urlSession;
    };

    /// `host` outlives the run. The delegate has not been told of the launch yet.
    Runtime(Host &host, const Settings &settings);
    ~Runtime();
    Q_DISABLE_COPY_MOVE(Runtime)

    [[nodiscard]] UIApplication &application() { return m_application; }
    [[nodiscard]] AppDelegate &delegate() { return *m_delegate; }

    /// Ends what is under way: requests complete as cancelled, everything they dispatched runs, and
    /// what was let go of is destroyed. To be called while the screens are still drawn, by
    /// whoever draws them; a second call does nothing more.
    void finish();

private:
    UIApplication m_application;
    std::unique_ptr<NSURLSession> m_session;
    std::unique_ptr<AppDelegate> m_delegate;
};
