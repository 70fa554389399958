// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Runtime.h"
#include "platform/linux/LinuxHost.h"

#include <QGuiApplication>

class DesktopWindow;

/// The program from its start to its end: the application on this machine, in its window.
class Launch {
public:
    /// `argc` and `argv` are as `main` has them and outlive the launch.
    Launch(int &argc, char *argv[], const NSURLSessionConfiguration &urlSession);
    ~Launch();
    Q_DISABLE_COPY_MOVE(Launch)

    /// Opens the URLs and runs the application until it is quit. Returns the process's exit status
    /// at once when another instance runs already, which the URLs are handed to.
    int run(const QStringList &urls);

private:
    void start();
    void showWindow();
    void openURLs(const QStringList &urls);
    void end();

    std::chrono::milliseconds m_patienceLeft;
    QGuiApplication m_application;
    LinuxHost m_host;
    Runtime::Settings m_settings;
    std::unique_ptr<Runtime> m_runtime;
    std::unique_ptr<DesktopWindow> m_window;
};
