// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void damage(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QFile::ReadWrite) && file.seek(60) && file.write("0000000000") == 10);
}

using Certificates = std::tuple<const char *, QString, int, bool, bool>;

} // namespace

/// What a service leaves in its folder for the next one to prove who it is.
class CertificatesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areKeptOrMadeAnew_data()
    {
        addCases<Certificates>({
            {"a year later", {}, 389, true, true},
            {"about to expire", {}, 392, true, false},
            {"ten years later", {}, 3600, false, false},
            {"server's key damaged", u"server.key"_s, 0, true, false},
            {"server's certificate damaged", u"server.pem"_s, 0, true, false},
            {"authority's key damaged", u"ca.key"_s, 0, false, false},
            {"authority damaged", u"ca.pem"_s, 0, false, false},
        });
    }

    void areKeptOrMadeAnew()
    {
        const auto &[name, damaged, days, keepsAuthority, keepsLeaf] = currentCase<Certificates>();
        const QTemporaryDir folder;
        const QString authorityFile = Sandbox({.directory = folder.path()}).caFile();
        const QString leafFile = folder.filePath(u"server.pem"_s);
        const QByteArray authority = contents(authorityFile);
        const QByteArray leaf = contents(leafFile);
        if (!damaged.isEmpty())
            damage(folder.filePath(damaged));
        const Sandbox service({.directory = folder.path(), .clockOffset = std::chrono::days(days)});
        QVERIFY2(service.isRunning(), qPrintable(service.errorString()));
        QCOMPARE(contents(authorityFile) == authority, keepsAuthority);
        QCOMPARE(contents(leafFile) == leaf, keepsLeaf);
        if (days == 0)
            QCOMPARE(Client(service.port(), service.caFile()).get("/user.php").status, 400);
    }
};

WZT_TEST(CertificatesTest)
#include "CertificatesTest.moc"
