// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "platform/foundation/url/NSURLSession.h"
#include "platform/uikit/base/UIApplication.h"

/// The application's shared objects: the UIApplication, the URL session and the delegate, made in
/// this order. The session ends first, then the delegate, then the UIApplication. A Qt application
/// object must outlive them.
class SharedObjects {
public:
    struct Settings {
        QString applicationId;
        /// The folder of the user defaults; empty for the user's configuration folder.
        QString defaultsFolder;
        NSURLSessionConfiguration urlSession;
    };

    /// `host` outlives the objects. The delegate's launch is left to the caller.
    SharedObjects(Host &host, const Settings &settings);
    ~SharedObjects();
    Q_DISABLE_COPY_MOVE(SharedObjects)

    [[nodiscard]] UIApplication &application() { return m_application; }
    [[nodiscard]] AppDelegate &delegate() { return *m_delegate; }

    /// Ends all work: requests complete as cancelled, everything they dispatched runs, and deferred
    /// deletes are done. A program with a window calls this before it destroys the window. A second
    /// call has no effect.
    void finish();

private:
    UIApplication m_application;
    std::unique_ptr<NSURLSession> m_session;
    std::unique_ptr<AppDelegate> m_delegate;
};
