// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Program.h"

#include "app/Renderer.h"
#include "app/TerminationSignals.h"
#include "model/BuildConstants.h"
#include "platform/uikit/presentation/DesktopWindow.h"
#include "platform/uikit/presentation/UIWindow.h"

#include <QFont>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The size of most texts. A text that is measured before its font is set is measured in the
/// application's font: in this size no other has to be loaded for it.
constexpr int bodySize = 17;

QString displayName()
{
    return QString::fromUtf8(BuildConstants::displayName);
}

QString applicationId()
{
    return QString::fromLatin1(BuildConstants::applicationId);
}

/// Prepares the process for the application object. Returns the time that the start may still wait
/// for the desktop.
std::chrono::milliseconds prepareProcess()
{
    const std::chrono::milliseconds remainingTime = LinuxHost::prepare();
    // A write beyond the limit for files fails then, instead of ending the program. An empty
    // handler does that: programs started from here would inherit an ignored signal.
    std::signal(SIGXFSZ, [](int) {});
    Renderer::choose();
    return remainingTime;
}

} // namespace

Program::Program(int &argc, char *argv[], const NSURLSessionConfiguration &urlSession)
    : m_remainingTime(prepareProcess()),
      m_application(argc, argv),
      m_host(applicationId(), m_remainingTime),
      m_settings{.applicationId = applicationId(), .defaultsFolder = {}, .urlSession = urlSession}
{
    QGuiApplication::setApplicationName(applicationId());
    QGuiApplication::setApplicationDisplayName(displayName());
    QGuiApplication::setApplicationVersion(QString::fromLatin1(BuildConstants::version));
    QGuiApplication::setDesktopFileName(applicationId());
    QFont font(u"Inter"_s);
    font.setPixelSize(bodySize);
    QGuiApplication::setFont(font);
}

Program::~Program() = default;

int Program::run(const QStringList &urls)
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
    showWindow();
    openURLs(urls);
    const int status = QGuiApplication::exec();
    end();
    return status;
}

void Program::start()
{
    m_shared = std::make_unique<SharedObjects>(m_host, m_settings);
    m_shared->delegate().didFinishLaunchingWithOptions();
}

void Program::showWindow()
{
    m_window = std::make_unique<DesktopWindow>(*m_shared->delegate().window(), displayName(),
                                               u":/icon.svg"_s);
    QObject::connect(&m_window->view(), &QQuickWindow::sceneGraphError,
                     [](QQuickWindow::SceneGraphError, const QString &message) {
                         Renderer::fallBack();
                         qFatal("%s", qUtf8Printable(message));
                     });
    m_window->show();
}

void Program::openURLs(const QStringList &urls)
{
    for (const QString &url : urls) {
        m_shared->delegate().openURL(url);
    }
}

void Program::end()
{
    // A later start must not hand its URLs to an ending application.
    m_host.releaseSingleInstance();
    m_shared->finish();
    m_window.reset();
    m_shared.reset();
}
