// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void overwrite(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
}

using Files = std::tuple<const char *, QString, int, bool, bool>;

} // namespace

/// How long the files of the certificates are kept.
class CertificatesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesAreKeptOrMadeAnew_data()
    {
        addCases<Files>({
            {"untouched", {}, 0, true, true},
            {"a year later", {}, 389, true, true},
            {"about to expire", {}, 392, true, false},
            {"ten years later", {}, 3600, false, false},
            {"server's key damaged", u"server.key"_s, 0, true, false},
            {"server's certificate damaged", u"server.pem"_s, 0, true, false},
            {"authority's key damaged", u"ca.key"_s, 0, false, false},
            {"authority damaged", u"ca.pem"_s, 0, false, false},
        });
    }

    void filesAreKeptOrMadeAnew()
    {
        const auto &[name, damaged, days, keepsAuthority, keepsLeaf] = currentCase<Files>();
        const QTemporaryDir folder;
        const QString authorityFile = Sandbox({.directory = folder.path()}).caFile();
        const QString leafFile = folder.path() + u"/server.pem"_s;
        const QByteArray authority = contents(authorityFile);
        const QByteArray leaf = contents(leafFile);
        if (!damaged.isEmpty()) {
            const QString path = folder.path() + u'/' + damaged;
            overwrite(path, contents(path).replace(60, 20, "00000000000000000000"));
        }
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
