// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/foundation/SessionFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
}

} // namespace

NSURLSessionConfiguration SessionFixture::configuration(std::chrono::milliseconds timeout) const
{
    return {m_service.caFile(), u"127.0.0.1:%1"_s.arg(m_service.port()), timeout};
}

void SessionFixture::send(Outcome &outcome, const QByteArray &method, const QByteArray &url)
{
    NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
    request.setHTTPMethod(method);
    const auto task = m_session->dataTaskWithRequest(request, outcome.completion());
    task->resume();
    task->resume(); // sends nothing more
}

int SessionFixture::codeOf(const QByteArray &method, const QByteArray &url)
{
    Outcome outcome;
    send(outcome, method, url);
    outcome.done.wait();
    return outcome.code;
}

void SessionFixture::initTestCase()
{
    // The long name makes a long reply, most of it body, for the drip.
    QVERIFY(m_service.addAccount({.email = u"secret"_s, .name = QString(900, u'a')}, u""_s));
}

void SessionFixture::init()
{
    logged.clear();
    m_previous = qInstallMessageHandler(record);
    m_service.clear();
    m_session = std::make_unique<NSURLSession>(configuration());
}

void SessionFixture::cleanup()
{
    m_session.reset();
    qInstallMessageHandler(m_previous);
    QCOMPARE(logged, QStringList());
}
