// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SharedObjects.h"
#include "platform/linux/LinuxHost.h"

#include <QGuiApplication>

class DesktopWindow;

/// The process from its start to its end: the application on this machine, in its window.
class Program {
public:
    /// `argc` and `argv` are those of `main` and outlive the program.
    Program(int &argc, char *argv[], const NSURLSessionConfiguration &urlSession);
    ~Program();
    Q_DISABLE_COPY_MOVE(Program)

    /// Opens the URLs and runs the application until it quits. If another instance already runs,
    /// hands the URLs to that one and returns at once. Returns the process's exit status.
    int run(const QStringList &urls);

private:
    void start();
    void showWindow();
    void openURLs(const QStringList &urls);
    void end();

    std::chrono::milliseconds m_remainingTime;
    QGuiApplication m_application;
    LinuxHost m_host;
    SharedObjects::Settings m_settings;
    std::unique_ptr<SharedObjects> m_shared;
    std::unique_ptr<DesktopWindow> m_window;
};
