// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/ResetMessage.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/TestRunner.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Sandbox;

namespace {

QString oneTimePassword(const QByteArray &message)
{
    static const QRegularExpression line(u"^    (\\S{20,})\\r$"_s,
                                         QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(message)).captured(1);
}

} // namespace

/// The way from a forgotten password to a new one.
class ResetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_service = std::make_unique<Sandbox>();
        m_client = std::make_unique<Client>(m_service->port(), m_service->caFile());
        m_service->addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"old"_s);
    }

    void firstSignInMakesItThePassword()
    {
        const QString password = requestPassword();
        QVERIFY(!password.isEmpty());
        QVERIFY(signsIn(u"old"_s));
        QCOMPARE(m_client
                     ->post("/update.php?userEmail=jo@wzt.example&userName=X&userOldPassword="
                            + Sandbox::digestOf(password))
                     .result(),
                 u"Incorrect"_s);
        m_service->advanceClock(59min);
        QVERIFY(signsIn(password));
        QVERIFY(!signsIn(u"old"_s));
        m_service->advanceClock(2h);
        QVERIFY(signsIn(password));
    }

    void unusedItExpires()
    {
        const QString password = requestPassword();
        m_service->advanceClock(1h);
        QVERIFY(!signsIn(password));
        QVERIFY(signsIn(u"old"_s));
    }

    void aNewerOneReplacesIt()
    {
        const QString first = requestPassword();
        const QString second = requestPassword();
        QVERIFY(first != second);
        QVERIFY(!signsIn(first));
        QVERIFY(signsIn(second));
    }

    void aChangedPasswordTakesItBack()
    {
        const QString password = requestPassword();
        m_client->post("/update.php?userEmail=jo@wzt.example&userOldPassword="
                       + Sandbox::digestOf(u"old"_s)
                       + "&userNewPassword=" + Sandbox::digestOf(u"new"_s));
        QVERIFY(!signsIn(password));
        QVERIFY(signsIn(u"new"_s));
    }

    void failureToWriteKeepsTheEarlierOne()
    {
        const QString password = requestPassword();
        const QString outbox = m_service->directory() + u"/outbox"_s;
        QVERIFY(QFile::permissions(outbox)
                == (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadUser
                    | QFile::WriteUser | QFile::ExeUser));
        QVERIFY(QDir().rename(outbox, outbox + u".away"_s));
        QFile obstacle(outbox);
        QVERIFY(obstacle.open(QFile::WriteOnly));
        QCOMPARE(reset(), u"Message could not be sent"_s);
        QVERIFY(signsIn(password));
    }

    void messageHoldsWhateverTheNameIs_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
             {u"Jo Smith-2"_s, u"Jo \"<b@c.example>\", (x) \\"_s,
              u"Jo\r\nBcc: all@wzt.example\r\n\r\nHi"_s, u"Żółć 🙂"_s.repeated(12),
              u"n"_s.repeated(100), u"=?utf-8?B?QQ==?="_s})
            QTest::newRow(qPrintable(name)) << name;
    }

    void messageHoldsWhateverTheNameIs()
    {
        QFETCH(const QString, name);
        const QDateTime date({2026, 3, 9}, {8, 5, 7}, Qt::OffsetFromUTC, -3600 * 5);
        const QByteArray message =
            sandbox::resetMessage(name, u"jo@wzt.example"_s, u"abcde-fghjk-23456-mnpqr"_s, date);
        const qsizetype split = message.indexOf("\r\n\r\n");
        const QByteArray head = message.left(split).replace("\r\n ", " ");
        QHash<QByteArray, QByteArray> fields;
        for (const QByteArray &line : head.split('\n')) {
            const qsizetype colon = line.indexOf(": ");
            fields.insert(line.left(colon), line.mid(colon + 2).trimmed());
        }
        QCOMPARE(fields.size(), 9);
        QCOMPARE(fields.value("Date"), "09 Mar 2026 08:05:07 -0500");
        QVERIFY(fields.value("Message-ID").endsWith("@wzt.example>"));
        QCOMPARE(oneTimePassword(message.mid(split)), u"abcde-fghjk-23456-mnpqr"_s);

        QByteArray read;
        QByteArrayList words = fields.value("To").split(' ');
        QCOMPARE(words.takeLast(), "<jo@wzt.example>");
        for (const QByteArray &word : words) {
            const bool isEncoded = word.startsWith("=?utf-8?B?") && word.endsWith("?=");
            read += isEncoded ? QByteArray::fromBase64(word.mid(10).chopped(2)) : word + ' ';
        }
        QCOMPARE(QString::fromUtf8(read).trimmed(), name);
        for (const QByteArray &line : message.split('\n')) {
            QVERIFY(line.endsWith('\r') || line.isEmpty());
            QVERIFY(line.size() <= 79);
        }
        QVERIFY(
            std::all_of(message.begin(), message.end(), [](char c) { return uchar(c) < 0x80; }));
    }

private:
    QString reset()
    {
        return m_client->post("/passwordreset.php?userEmail=JO@wzt.example").result();
    }
    QString requestPassword()
    {
        return reset() == "Message has been sent"_L1
            ? oneTimePassword(m_service->messages().constLast())
            : QString();
    }
    bool signsIn(const QString &password)
    {
        const Answer answer = m_client->get("/login.php?userEmail=jo@wzt.example&userPassword="
                                            + Sandbox::digestOf(password));
        return answer.json().contains(u"userTavloID"_s);
    }

    std::unique_ptr<Sandbox> m_service;
    std::unique_ptr<Client> m_client;
};

WZT_TEST(ResetTest)

#include "ResetTest.moc"
