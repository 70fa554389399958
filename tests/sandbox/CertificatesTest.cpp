// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Certificate.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <openssl/x509v3.h>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

constexpr qint64 day = 86'400;

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

template <auto release, class T>
std::unique_ptr<T, void (*)(T *)> owned(T *object)
{
    return {object, [](T *each) { release(each); }};
}

// OpenSSL's verdict on the chain, for a TLS server, at that moment.
int verdict(const sandbox::Certificate &authority, const sandbox::Certificate &leaf, qint64 now)
{
    const auto store = owned<X509_STORE_free>(X509_STORE_new());
    const auto context = owned<X509_STORE_CTX_free>(X509_STORE_CTX_new());
    X509_STORE_add_cert(store.get(), authority.x509.get());
    X509_STORE_CTX_init(context.get(), store.get(), leaf.x509.get(), nullptr);
    X509_VERIFY_PARAM *parameters = X509_STORE_CTX_get0_param(context.get());
    X509_VERIFY_PARAM_set_purpose(parameters, X509_PURPOSE_SSL_SERVER);
    X509_VERIFY_PARAM_set_time(parameters, time_t(now));
    X509_VERIFY_PARAM_set_flags(parameters, X509_V_FLAG_X509_STRICT);
    X509_verify_cert(context.get());
    return X509_STORE_CTX_get_error(context.get());
}

using Names = std::tuple<const char *, int>;
using Files = std::tuple<const char *, QString, int, bool, bool>;

} // namespace

/// The authority that clients are asked to trust, and how long the files are kept.
class CertificatesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void authoritySignsForThisMachineAlone_data()
    {
        addCases<Names>({
            {"DNS:localhost,IP:127.0.0.1,IP:::1", X509_V_OK},
            {"DNS:localhost,DNS:wzt.example", X509_V_ERR_PERMITTED_VIOLATION},
            {"IP:192.168.1.1", X509_V_ERR_PERMITTED_VIOLATION},
            {"IP:::2", X509_V_ERR_PERMITTED_VIOLATION},
        });
    }

    void authoritySignsForThisMachineAlone()
    {
        const auto &[names, expected] = currentCase<Names>();
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        const auto authority = sandbox::makeAuthority(now);
        QVERIFY(authority);
        const auto leaf = sandbox::issue(*authority, names, now - 60, now + day);
        QVERIFY(leaf);
        QCOMPARE(verdict(*authority, *leaf, now), expected);
        QVERIFY(verdict(*authority, *leaf, now + 2 * day) != X509_V_OK);
        const auto below = sandbox::issue(*leaf, names, now - 60, now + day);
        QVERIFY(verdict(*leaf, *below, now) != X509_V_OK);
    }

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
