// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"

#include "harness/TestRunner.h"
#include "platform/foundation/coding/NSKeyedArchiver.h"

using namespace Qt::StringLiterals;

TestApp::TestApp()
{
    if (!m_service.isRunning()) {
        qFatal("no service: %s", qPrintable(m_service.errorString()));
    }

    m_settings.applicationId = u"example.wzt.Companion.Test"_s;
    m_settings.defaultsFolder = m_folder.path();
    m_settings.urlSession.certificateAuthorityFile = m_service.caFile();
    m_settings.urlSession.connectTo = u"127.0.0.1:%1"_s.arg(m_service.port());
    m_settings.urlSession.timeoutIntervalForRequest =
        std::chrono::milliseconds(TestRunner::patience);
}

TestApp::~TestApp()
{
    quit();
}

void TestApp::launch()
{
    quit();
    m_shared = std::make_unique<SharedObjects>(m_host, m_settings);
    m_shared->delegate().didFinishLaunchingWithOptions();
}

void TestApp::launchSignedIn(const WZTUser &user)
{
    m_service.addAccount({.email = user.email.value(), .name = user.userName.value()}, u"secret"_s);
    keepUser(user);
    launch();
}

void TestApp::quit()
{
    m_shared.reset();
}

QString TestApp::alert()
{
    const auto *alert = top<UIAlertController>();
    if (!alert) {
        return {};
    }
    QStringList shown{alert->title(), alert->message()};
    for (const auto &field : alert->textFields()) {
        shown.append(field->placeholder());
    }
    for (const auto &action : alert->actions()) {
        const bool cancels = action->style() == UIAlertAction::Style::Cancel;
        shown.append(cancels ? u'(' + action->title() + u')' : action->title());
    }
    return shown.join(u'|');
}

NSUserDefaults TestApp::defaults() const
{
    return NSUserDefaults(m_settings.applicationId, m_settings.defaultsFolder);
}

void TestApp::keepData(const QByteArray &data)
{
    if (!defaults().setObject(data, u"currentUser"_s)) {
        qFatal("the user defaults cannot be written");
    }
}

void TestApp::forgetUser()
{
    if (!defaults().removeObjectForKey(u"currentUser"_s)) {
        qFatal("the user defaults cannot be written");
    }
}

std::optional<QByteArray> TestApp::keptData() const
{
    return defaults().dataForKey(u"currentUser"_s);
}

QByteArray TestApp::archived(const WZTUser &user)
{
    return NSKeyedArchiver::archivedDataWithRootObject(user, WZTUser::className).value();
}
