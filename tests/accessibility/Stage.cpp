// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/Stage.h"

#include <QDBusReply>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Nothing is said when the bus is there, so it is asked for until it answers.
QString busAddress()
{
    const auto request = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                        u"org.a11y.Bus"_s, u"GetAddress"_s);
    QDBusReply<QString> address;
    [&] {
        QTRY_VERIFY_WITH_TIMEOUT((address = QDBusConnection::sessionBus().call(request)).isValid(),
                                 20000);
    }();
    return address;
}

} // namespace

Stage::Stage()
{
    qputenv("GSETTINGS_BACKEND", "memory");
    const QByteArray display =
        m_display.startAndRead(u"Xvfb"_s,
                               {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s,
                                u"0"_s, u"1024x960x24"_s});
    qputenv("DISPLAY", ':' + display);
    m_accessibility.start(u"/usr/libexec/at-spi-bus-launcher"_s,
                          {u"--launch-immediately"_s, u"--a11y=1"_s, u"--screen-reader=1"_s});
    m_reader = std::make_unique<ScreenReader>(busAddress());
}

void Stage::launch()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_application.setProcessEnvironment(environment);
    m_application.start(QStringLiteral(COMPANION_UNDER_TEST),
                        {m_service.caFile(), u"127.0.0.1:%1"_s.arg(m_service.port())});
}
