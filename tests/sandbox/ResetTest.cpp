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

const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;

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
        QVERIFY(!signsIn(password) && signsIn(u"old"_s));
    }

    void aNewerOneReplacesIt()
    {
        const QString first = requestPassword();
        const QString second = requestPassword();
        QVERIFY(first != second);
        QVERIFY(!signsIn(first) && signsIn(second));
    }

    void aChangedPasswordTakesItBack()
    {
        const QString password = requestPassword();
        m_client->post("/update.php?userEmail=jo@wzt.example&userOldPassword="
                       + Sandbox::digestOf(u"old"_s)
                       + "&userNewPassword=" + Sandbox::digestOf(u"new"_s));
        QVERIFY(!signsIn(password) && signsIn(u"new"_s));
    }

    void failureToWriteKeepsTheEarlierOne()
    {
        const QString password = requestPassword();
        const QString outbox = m_service->directory() + u"/outbox"_s;
        QVERIFY(!(QFile::permissions(outbox) & others));
        QVERIFY(QDir().rename(outbox, outbox + u".away"_s));
        QFile obstacle(outbox);
        QVERIFY(obstacle.open(QFile::WriteOnly));
        QCOMPARE(reset(), u"Message could not be sent"_s);
        QVERIFY(signsIn(password));
    }

    void noNameBreaksTheMessage()
    {
        for (const QString &name :
             {u"Jo \"<b@c.example>\", (x) \\"_s, u"Jo\r\nBcc: all@wzt.example\r\n\r\nHi"_s,
              u"Żółć 🙂"_s.repeated(12), u"n"_s.repeated(100)}) {
            const QByteArray message = sandbox::resetMessage(
                name, u"jo@wzt.example"_s, u"abcde-fghjk-23456-mnpqr"_s,
                QDateTime({2026, 3, 9}, {8, 5, 7}, Qt::OffsetFromUTC, -18000));
            const qsizetype split = message.indexOf("\r\n\r\n");
            const QByteArray head = message.left(split).replace("\r\n ", " ");
            QCOMPARE(head.count('\n'), 8);
            QVERIFY(head.contains("Date: 09 Mar 2026 08:05:07 -0500\r"));
            QVERIFY(head.contains(" <jo@wzt.example>\r"));
            QCOMPARE(oneTimePassword(message.mid(split)), u"abcde-fghjk-23456-mnpqr"_s);
            for (const QByteArray &line : message.split('\n'))
                QVERIFY((line.endsWith('\r') || line.isEmpty()) && line.size() <= 79);
            QVERIFY(message == QString::fromUtf8(message).toLatin1());
        }
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
