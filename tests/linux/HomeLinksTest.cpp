// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/linux/HomeFile.h"
#include "tests/support/TestRunner.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The links of Home, on machines where this and that is installed.
class HomeLinksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyLinkReachesItsHandler_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QStringList>("opened");
        const QStringList zebra{u"zbra zbra://sources/add/https://repo.wzt.example"_s,
                                u"zbra zbra://sources/add/https://supporter.wzt.example/repo/"_s};
        const QString share = u"cydia cydia://url/https://share.wzt.example/api/share#?source="_s;
        const QStringList cydia{share + u"https://repo.wzt.example"_s,
                                share + u"https://supporter.wzt.example/repo/"_s};
        const QStringList chat{u"https https://chat.wzt.example/invite/wzt"_s};
        QTest::newRow("all") << QStringList{u"zbra"_s, u"cydia"_s, u"https"_s} << chat + zebra;
        QTest::newRow("no Zebra") << QStringList{u"cydia"_s, u"https"_s} << cydia + chat;
        QTest::newRow("Zebra alone") << QStringList{u"zbra"_s} << zebra;
        QTest::newRow("nothing") << QStringList() << QStringList();
    }

    void everyLinkReachesItsHandler()
    {
        QFETCH(const QStringList, installed);
        const QTemporaryDir home;
        install(home, installed);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"HOME"_s, u"XDG_DATA_DIRS"_s, u"XDG_CONFIG_DIRS"_s})
            environment.insert(name, home.path());
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(), {u"--open-links"_s});
        QVERIFY2(program.waitForFinished(10000), "hangs");
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(program.readAllStandardError(), QByteArray());
        QFETCH(const QStringList, opened);
        const auto seen = [&] {
            const QString text = QString::fromUtf8(readHomeFile(home.filePath(u"seen"_s)));
            QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
            lines.sort(); // handlers run side by side
            return lines;
        };
        QTRY_COMPARE(seen(), opened);
    }

private:
    // For each scheme an application that writes down its name and what it was given.
    static void install(const QTemporaryDir &home, const QStringList &schemes)
    {
        const QByteArray folder = QFile::encodeName(home.path());
        QByteArray defaults = "[Default Applications]\n";
        for (const QString &scheme : schemes) {
            const QByteArray name = scheme.toLatin1();
            defaults += "x-scheme-handler/" + name + '=' + name + ".desktop\n";
            QVERIFY(
                writeHomeFile(home.filePath(u".local/share/applications/%1.desktop"_s.arg(scheme)),
                              "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=sh "
                                  + folder + "/handler " + name + " %u\n"));
        }
        QVERIFY(writeHomeFile(home.filePath(u"handler"_s),
                              "printf '%s\\n' \"$*\" >> " + folder + "/seen\n"));
        QVERIFY(writeHomeFile(home.filePath(u".config/mimeapps.list"_s), defaults));
    }
};

WZT_TEST(HomeLinksTest)
#include "HomeLinksTest.moc"
