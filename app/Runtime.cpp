// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Runtime.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

void destroyWhatWasLetGo()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Runtime::Runtime(Host &host, const Settings &settings)
    : m_application(host),
      m_session(std::make_unique<NSURLSession>(settings.urlSession)),
      m_delegate(std::make_unique<AppDelegate>(settings.applicationId, settings.defaultsFolder))
{
    NSURLSession::setSharedSession(m_session.get());
    host.observeAppearance(
        [application = QPointer(&m_application)](const DesktopAppearance &appearance) {
            if (application) {
                application->traits().setDesktopAppearance(appearance);
            }
        });
}

Runtime::~Runtime()
{
    finish();
    m_delegate.reset();
    // The screens that the delegate kept are to be gone before the application is.
    destroyWhatWasLetGo();
}

void Runtime::finish()
{
    m_session.reset();
    QCoreApplication::sendPostedEvents();
    destroyWhatWasLetGo();
}
