// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Files.h"
#include "harness/TestRunner.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

/// The certificates that a service keeps in its folder for the next start.
class CertificatesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areKeptOrMadeAnew()
    {
        const QString authority = u"ca.pem"_s;
        const QString leaf = u"server.pem"_s;
        const std::tuple<QString, int, QStringList> rows[] = {
            {u""_s, 389, {authority, leaf}}, // days later
            {u""_s, 392, {authority}}, // about to expire
            {u""_s, 3600, {}},
            {u"server.key"_s, 0, {authority}}, // damaged
            {leaf, 0, {authority}},
            {u"ca.key"_s, 0, {}},
            {authority, 0, {}},
        };
        for (const auto &[damaged, days, kept] : rows) {
            const QTemporaryDir folder;
            QVERIFY(Sandbox({.directory = folder.path()}).isRunning());
            QMap<QString, QByteArray> before;
            for (const QString &name : {authority, leaf}) {
                before[name] = Files::content(folder.filePath(name));
            }
            QFile file(folder.filePath(damaged));
            if (!damaged.isEmpty() && file.open(QFile::ReadWrite) && file.seek(60)) {
                file.write("0000000000");
                file.close();
            }
            const Sandbox service(
                {.directory = folder.path(), .clockOffset = std::chrono::days(days)});
            QVERIFY2(service.isRunning(), qPrintable(service.errorString()));
            for (const QString &name : {authority, leaf}) {
                QCOMPARE(Files::content(folder.filePath(name)) == before[name],
                         kept.contains(name));
            }
            if (days == 0) {
                QCOMPARE(Client(service.port(), service.caFile()).get("/user.php").status, 400);
            }
        }
    }
};

WZT_TEST(CertificatesTest)
#include "CertificatesTest.moc"
