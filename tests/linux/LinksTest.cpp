// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Files.h"
#include "harness/TestRunner.h"
#include "platform/linux/LinuxHost.h"
#include "tests/linux/FakeService.h"
#include "tests/linux/OtherProcess.h"

#include <QDBusArgument>
#include <QRegularExpression>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct SandboxCase {
    const char *name;
    QString usePortal;
    QString url;
    QString service;
    QVariant supported;
    bool isMute;
    QByteArray said;
    qsizetype calls;
};

} // namespace

class LinksTest : public QObject {
    Q_OBJECT

    LinuxHost m_host{u"example.wzt.Test"_s};
    QFile m_gate{QDir::home().filePath(u"gate"_s)};

private Q_SLOTS:
    // A handler that waits until the test opens the gate, and then records its argument.
    void initTestCase()
    {
        const QDir home = QDir::home();
        Files::write(home.filePath(u"handler"_s),
                     "read go < \"$HOME/gate\"\nprintf %s \"$1\" > \"$HOME/part\"\n"
                     "mv \"$HOME/part\" \"$HOME/seen\"\n");
        Files::write(home.filePath(u".local/share/applications/handler.desktop"_s),
                     "[Desktop Entry]\nType=Application\nName=Handler\nExec=sh "
                         + QFile::encodeName(home.path()) + "/handler %u\n");
        Files::write(home.filePath(u".local/share/applications/true.desktop"_s),
                     "[Desktop Entry]\nType=Application\nName=True\nExec=true %u\n");
        Files::write(home.filePath(u".config/mimeapps.list"_s),
                     "[Default Applications]\nx-scheme-handler/zbra=handler.desktop\n"
                     "x-scheme-handler/cydia=handler.desktop\n"
                     "x-scheme-handler/own=true.desktop\n");
        QCOMPARE(::mkfifo(QFile::encodeName(m_gate.fileName()).constData(), 0600), 0);
        // Also opened for reading, so that writing never blocks and the end of the test opens the
        // gate.
        QVERIFY(m_gate.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    }

    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void handlerGetsEveryByte()
    {
        for (const QString &url :
             {u"zbra://"_s, u"zbra://sources/add/https://repo.wzt.example/repo/"_s,
              u"cydia://url/https://share.wzt.example/api/share#?source=https://Repo.WZT.example"_s,
              u"ZBRA://Host.EXAMPLE/%41%zz%u%%f//../."_s,
              u"zbra://a b'c\"d$(e)`f`;&|*?~\\\n<>é€"_s}) {
            QVERIFY(m_host.canOpenURL(url));
            m_host.openURL(url); // would never return if it waited for the handler
            QCOMPARE(m_gate.write("go\n"), 3);
            const QString seen = QDir::home().filePath(u"seen"_s);
            QTRY_VERIFY(QFile::exists(seen));
            QCOMPARE(Files::content(seen), url.toUtf8());
            QVERIFY(QFile::remove(seen));
        }
    }

    void nobodyHandles()
    {
        for (const QString &url : {u"nobody://x"_s, u"zbr://x"_s, u"zbra"_s, u"://zbra"_s, u""_s}) {
            QVERIFY2(!m_host.canOpenURL(url), qPrintable(url));
            m_host.openURL(url);
        }
    }

    void linksOfASandbox_data()
    {
        const QString portal = u"org.freedesktop.portal.Desktop"_s;
        const QString url = u"Nobody://a b/%41#?x=É"_s;
        addCases<SandboxCase>({
            {"supported", u"1"_s, url, portal, true, false, "handled\n", 2},
            {"not supported", u"1"_s, url, portal, false, false, "unhandled\n", 2},
            {"old portal", u"1"_s, url, portal, {}, false, "unhandled\n", 2},
            {"dead portal", u"1"_s, url, portal, {}, true, "unhandled\n", 2},
            {"no portal", u"1"_s, url, u"example.wzt-test.None"_s, true, false, "unhandled\n", 0},
            {"handler inside", u"1"_s, u"own://x"_s, portal, false, false, "handled\n", 0},
            {"no sandbox", {}, url, portal, true, false, "unhandled\n", 0},
        });
    }

    // The other process asks the portal on this test's bus.
    void linksOfASandbox()
    {
        const auto &[name, usePortal, url, service, supported, isMute, said, calls] =
            currentCase<SandboxCase>();
        FakeService portal(service, u"/org/freedesktop/portal/desktop"_s, supported);
        portal.isMute = isMute;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"GTK_USE_PORTAL"_s, usePortal);
        QCOMPARE(runOtherProcess({u"--open"_s, url}, environment), said);
        for (QVariantList &call : portal.calls) {
            QCOMPARE(call.takeLast().value<QDBusArgument>().currentSignature(), u"a{sv}"_s);
        }
        const QString interface = u"org.freedesktop.portal.OpenURI"_s;
        const QList<QVariantList> expected{{interface, u"OpenURI"_s, QString(), url},
                                           {interface, u"SchemeSupported"_s, u"nobody"_s}};
        QCOMPARE(portal.calls, expected.first(calls));
    }
};

WZT_TEST(LinksTest)
#include "LinksTest.moc"
