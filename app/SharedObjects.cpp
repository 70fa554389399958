// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/SharedObjects.h"

#include "platform/uikit/base/Host.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

void drainDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

SharedObjects::SharedObjects(Host &host, const Settings &settings)
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

SharedObjects::~SharedObjects()
{
    finish();
    m_delegate.reset();
    // The delegate's screens must be destroyed before the application.
    drainDeferredDeletes();
}

void SharedObjects::finish()
{
    m_session.reset();
    QCoreApplication::sendPostedEvents();
    drainDeferredDeletes();
}
