// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Files.h"
#include "harness/MuteSocket.h"
#include "harness/TestRunner.h"
#include "model/BuildConstants.h"
#include "platform/linux/LinuxHost.h"
#include "tests/linux/AuthOnlyBus.h"
#include "tests/linux/FakeService.h"
#include "tests/linux/OtherProcess.h"

#include <QDBusArgument>
#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString applicationId = u"example.wzt-test.Companion"_s;
const QString scheme = QString::fromLatin1(BuildConstants::urlScheme);

// Starts the application again; the output tells whether it is the single instance.
QByteArray start(const QStringList &urls, const QProcessEnvironment &environment,
                 const QString &name = applicationId)
{
    return runOtherProcess(QStringList{u"--start"_s, name} + urls, environment);
}

/// The memory of this process, in pages.
qint64 residentPages()
{
    return Files::content(u"/proc/self/statm"_s).split(' ').value(1).toLongLong();
}

} // namespace

class InstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void laterStart()
    {
        const std::tuple<QStringList, QString, bool> rows[] = {
            {{scheme + "://a?b=%41"_L1, u"WZT://é b"_s}, u"token-1"_s, true},
            {{}, u"token-2"_s, false}, // the bus is in the runtime folder
        };
        for (const auto &[urls, token, addressKnown] : rows) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
            if (!addressKnown) {
                environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
            }
            QList<QStringList> opened;
            {
                LinuxHost host(applicationId);
                const auto append = [&](const QStringList &list) {
                    opened.append(QStringList(list)
                                  << qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
                };
                QVERIFY(host.claimSingleInstance({u"own"_s}, append));
                QCOMPARE(start(urls, environment), "second\n");
                QCOMPARE(opened, QList<QStringList>{QStringList(urls) << token});
                QVERIFY(qEnvironmentVariableIsEmpty("XDG_ACTIVATION_TOKEN"));
            }
            QCOMPARE(start(urls, environment), "only\n");
        }
    }

    void instanceThatDoesNotAnswerAtOnce()
    {
        QList<QStringList> opened;
        const auto append = [&](const QStringList &list) { opened.append(list); };
        LinuxHost first(applicationId);
        LinuxHost second(applicationId);
        const QStringList urls{u"wzt://x"_s};
        QVERIFY(first.claimSingleInstance({}, append));
        // The first cannot answer, because this call blocks its thread.
        QTest::ignoreMessage(
            QtInfoMsg, "The application that runs does not answer: this start is on its own.");
        QVERIFY(second.claimSingleInstance(urls, {}));
        QVERIFY(opened.isEmpty());
        QTRY_COMPARE(opened, QList<QStringList>{urls});

        QDBusMessage action =
            QDBusMessage::createMethodCall(applicationId, u"/example/wzt_test/Companion"_s,
                                           u"org.freedesktop.Application"_s, u"ActivateAction"_s);
        action << u"new"_s << QVariantList() << QVariantMap();
        QVERIFY(QDBusConnection::sessionBus().send(action));
        QTRY_COMPARE(opened, (QList<QStringList>{urls, {}}));
    }

    /// Each of these once ended the start without a window, or delayed it without limit.
    void unusableBus()
    {
        const QString home = QDir::homePath();
        const QByteArray muteAddress = "unix:path=" + home.toUtf8() + "/mute%20bus";
        const MuteSocket mute(home.toUtf8() + "/mute bus");
        const QByteArray fullAddress = "unix:path=" + home.toUtf8() + "/full-bus";
        MuteSocket full(home.toUtf8() + "/full-bus");
        full.fill();
        const AuthOnlyBus authOnly(home.toUtf8() + "/auth-only-bus");
        // It owns the name and implements none of the calls.
        const FakeService stranger(u"example.wzt-test.Stranger"_s, u"/elsewhere"_s, {});
        const std::pair<QString, QByteArray> rows[] = {
            {u"example.wzt-test.Refused"_s, {}},
            {u"example.wzt-test.Stranger"_s, {}},
            {applicationId, muteAddress},
            {applicationId, fullAddress},
            {applicationId, "unix:path=" + home.toUtf8() + "/auth-only-bus"},
            {applicationId, "unix:path=/nowhere"},
            {applicationId, "unix:path=/nowhere;" + muteAddress + ",guid=1"},
        };
        for (const auto &[name, address] : rows) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            if (!address.isEmpty()) {
                environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(address));
            }
            const QByteArray output = start({}, environment, name);
            QVERIFY2(output.endsWith("only\n") && output.count('\n') == 2, output.constData());
        }
    }

    void releasesTheMemoryOfACall()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("The sanitizer keeps what is freed.");
#endif
        qsizetype opened = 0;
        LinuxHost host(applicationId);
        QVERIFY(
            host.claimSingleInstance({}, [&](const QStringList &urls) { opened = urls.size(); }));
        const qint64 before = residentPages();
        constexpr qsizetype many = 300000;
        {
            QDBusMessage open =
                QDBusMessage::createMethodCall(applicationId, u"/example/wzt_test/Companion"_s,
                                               u"org.freedesktop.Application"_s, u"Open"_s);
            QStringList urls;
            for (qsizetype i = 0; i < many; ++i) {
                urls.append(u"wzt://somewhere/"_s + QString::number(i));
            }
            open << urls << QVariantMap();
            QVERIFY(QDBusConnection::sessionBus().send(open));
        }
        QTRY_COMPARE_WITH_TIMEOUT(opened, many, 20000);
        // The list takes ten thousand pages.
        QTRY_VERIFY(residentPages() < before + 3000);
    }

    void tapTriggersFeedback()
    {
        LinuxHost host(applicationId);
        host.impactOccurred(UIImpactFeedbackStyle::Light); // nobody is there yet
        const FakeService daemon(u"org.sigxcpu.Feedback"_s, u"/org/sigxcpu/Feedback"_s, 1U);
        host.impactOccurred(UIImpactFeedbackStyle::Light);
        QTRY_COMPARE(daemon.calls.size(), 1);
        const QVariantList &call = daemon.calls[0];
        QCOMPARE(call.first(4),
                 (QVariantList{u"org.sigxcpu.Feedback"_s, u"TriggerFeedback"_s, applicationId,
                               u"button-pressed"_s}));
        QVERIFY(qdbus_cast<QVariantMap>(call[4]).isEmpty());
        QCOMPARE(call[5], -1);
    }

    // A second start runs as a second process, logs nothing and starts no bus.
    void startsWithoutABus()
    {
        LinuxHost host(applicationId);
        QVERIFY(host.claimSingleInstance({}, [](const QStringList &) {}));
        const QString home = QDir::homePath();
        const QString launcher = home + "/dbus-launch"_L1;
        Files::write(launcher, "#!/bin/sh\n: > \"$HOME/launched\"\n");
        QVERIFY(QFile::setPermissions(launcher, QFile::ReadOwner | QFile::ExeOwner));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        environment.insert(u"XDG_RUNTIME_DIR"_s, home);
        environment.insert(u"DISPLAY"_s, u":77"_s);
        // Qt's input method asks for the bus while the application object is made.
        environment.insert(u"QT_IM_MODULE"_s, u"ibus"_s);
        environment.insert(u"IBUS_USE_PORTAL"_s, u"1"_s);
        environment.insert(u"PATH"_s, home + u':' + environment.value(u"PATH"_s));
        QCOMPARE(start({}, environment), "only\n");
        QVERIFY(!QFile::exists(home + "/launched"_L1));
    }
};

WZT_TEST(InstanceTest)
#include "InstanceTest.moc"
