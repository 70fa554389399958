// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Sandbox;

/// The reset of a forgotten password.
class ResetTest : public QObject {
    Q_OBJECT

    Sandbox m_service;
    Client m_client{m_service.port(), m_service.caFile()};

    QString requestPassword()
    {
        const Answer answer = m_client.post("/passwordreset.php?userEmail=JO@wzt.example");
        static const QRegularExpression line(u"\r\n    (\\S{20,})\r\n"_s);
        return answer.result() == "Message has been sent"_L1
            ? line.match(QString::fromLatin1(m_service.messages().constLast())).captured(1)
            : answer.result();
    }
    bool signsIn(const QString &password)
    {
        return m_client
            .get("/login.php?userEmail=jo@wzt.example&userPassword=" + Sandbox::digestOf(password))
            .isUser();
    }
    Answer update(const QString &password, const QString &newPassword)
    {
        return m_client.post("/update.php?userEmail=jo@wzt.example&userOldPassword="
                             + Sandbox::digestOf(password)
                             + "&userNewPassword=" + Sandbox::digestOf(newPassword));
    }

private Q_SLOTS:
    void aOneTimePasswordIsGoodForOneHourAndOneAccount()
    {
        m_service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"old"_s);
        const QString unused = requestPassword();
        QCOMPARE(update(unused, u"x"_s).result(), u"Incorrect"_s);
        m_service.advanceClock(1h);
        QVERIFY(!signsIn(unused) && signsIn(u"old"_s));

        const QString replaced = requestPassword();
        const QString used = requestPassword();
        m_service.advanceClock(59min);
        QVERIFY(replaced != used && !signsIn(replaced) && signsIn(u"old"_s));
        QVERIFY(signsIn(used) && !signsIn(u"old"_s));
        m_service.advanceClock(2h);
        QVERIFY(signsIn(used));

        const QString takenBack = requestPassword();
        QVERIFY(update(used, u"new"_s).isUser());
        QVERIFY(!signsIn(takenBack) && signsIn(u"new"_s));

        // The earlier one remains valid if the next message cannot be written.
        const QString kept = requestPassword();
        const QString outbox = m_service.directory() + u"/outbox"_s;
        QVERIFY(!(QFile::permissions(outbox) & (QFile::ReadGroup | QFile::ReadOther)));
        QFile obstacle(outbox);
        QVERIFY(QDir().rename(outbox, outbox + u".away"_s) && obstacle.open(QFile::WriteOnly));
        QCOMPARE(requestPassword(), u"Message could not be sent"_s);
        QVERIFY(signsIn(kept));
    }
};

WZT_TEST(ResetTest)
#include "ResetTest.moc"
