// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Launch.h"

#include "app/LifeCycle.h"
#include "app/Renderer.h"
#include "app/TerminationSignals.h"
#include "model/BuildConstants.h"
#include "platform/uikit/presentation/DesktopWindow.h"
#include "platform/uikit/presentation/UIWindow.h"

#include <QFont>
#include <QIcon>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QString displayName()
{
    return QString::fromUtf8(BuildConstants::displayName);
}

QString applicationId()
{
    return QString::fromLatin1(BuildConstants::applicationId);
}

int &prepared(int &argc)
{
    // A file that may not grow any further is a write that fails, not the end of the program. A
    // handler, for programs started from here would inherit that the signal is ignored.
    std::signal(SIGXFSZ, [](int) {});
    Renderer::choose();
    return argc;
}

} // namespace

Launch::Launch(int &argc, char *argv[], const NSURLSessionConfiguration &urlSession)
    : m_patienceLeft(LinuxHost::prepare()),
      m_application(prepared(argc), argv),
      m_host(applicationId(), m_patienceLeft),
      m_settings{.applicationId = applicationId(), .defaultsFolder = {}, .urlSession = urlSession}
{
    QGuiApplication::setApplicationName(applicationId());
    QGuiApplication::setApplicationDisplayName(displayName());
    QGuiApplication::setApplicationVersion(QString::fromLatin1(BuildConstants::version));
    QGuiApplication::setDesktopFileName(applicationId());
    QGuiApplication::setFont(QFont(u"Inter"_s));
}

Launch::~Launch() = default;

int Launch::run(const QStringList &urls)
{
    const auto opened = [this](const QStringList &later) {
        if (!m_window) {
            return;
        }
        openURLs(later);
        m_window->show();
    };
    if (!m_host.claimSingleInstance(urls, opened)) {
        return 0;
    }

    const TerminationSignals terminationSignals(&QGuiApplication::quit);
    start();
    LifeCycle lifeCycle(m_runtime->delegate());
    const QObject following;
    QObject::connect(&m_application, &QGuiApplication::applicationStateChanged, &following,
                     [&](Qt::ApplicationState state) { lifeCycle.enter(state); });
    showWindow();
    openURLs(urls);
    const int status = QGuiApplication::exec();
    end();
    return status;
}

void Launch::start()
{
    m_runtime = std::make_unique<Runtime>(m_host, m_settings);
    m_runtime->delegate().didFinishLaunchingWithOptions();
}

void Launch::showWindow()
{
    m_window = std::make_unique<DesktopWindow>(*m_runtime->delegate().window(), displayName(),
                                               QIcon(u":/icon.svg"_s));
    QObject::connect(&m_window->view(), &QQuickWindow::sceneGraphError,
                     [](QQuickWindow::SceneGraphError, const QString &message) {
                         Renderer::fallBack();
                         qFatal("%s", qUtf8Printable(message));
                     });
    m_window->show();
}

void Launch::openURLs(const QStringList &urls)
{
    for (const QString &url : urls) {
        m_runtime->delegate().openURL(url);
    }
}

void Launch::end()
{
    // A start from now on is not handed to an application that is about to go.
    m_host.releaseSingleInstance();
    m_runtime->delegate().applicationWillTerminate();
    m_runtime->finish();
    m_window.reset();
    m_runtime.reset();
}
