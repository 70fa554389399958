// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/ResetMessage.h"

#include <QByteArrayList>
#include <QUuid>

#include <algorithm>

namespace sandbox {

namespace {

constexpr auto domain = "wzt.example";
// A name of these characters consists of atoms (RFC 5322), and needs neither quotes nor encoding.
constexpr auto plainCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -";
constexpr int plainLength = 60;
// 45 bytes are 60 characters of Base64. An encoded word (RFC 2047, 2) adds 12, and may have 75.
constexpr int encodedBytes = 45;

bool isPlain(const QString &name)
{
    const QByteArrayView plain(plainCharacters);
    return name.size() <= plainLength && name == name.simplified()
        && std::all_of(name.begin(), name.end(), [plain](QChar c) {
               return c.unicode() < 0x80 && plain.contains(static_cast<char>(c.unicode()));
           });
}

QByteArray encodedWords(const QString &name)
{
    QByteArrayList words;
    QByteArray piece;
    const auto finish = [&] {
        words.append("=?utf-8?B?" + piece.toBase64() + "?=");
        piece.clear();
    };
    for (const char32_t c : name.toUcs4()) {
        const QByteArray bytes = QString::fromUcs4(&c, 1).toUtf8();
        if (piece.size() + bytes.size() > encodedBytes) {
            finish();
        }
        piece += bytes;
    }
    finish();
    return words.join("\r\n ");
}

QByteArray body(const QString &password)
{
    return "Hello,\r\n"
           "\r\n"
           "somebody, most likely you, asked for a new password for the account of\r\n"
           "this address. Sign in with this one-time password:\r\n"
           "\r\n"
           "    "
        + password.toLatin1()
        + "\r\n"
          "\r\n"
          "It becomes your password when you first sign in with it, and lasts for an\r\n"
          "hour otherwise. Until then your old password works as before: if you did\r\n"
          "not ask for this, there is nothing to do.\r\n";
}

} // namespace

QByteArray resetMessage(const QString &name, const QString &address, const QString &password,
                        const QDateTime &date)
{
    const QString when = date.toOffsetFromUtc(date.offsetFromUtc()).toString(Qt::RFC2822Date);
    const QByteArray id = QUuid::createUuid().toByteArray(QUuid::Id128);
    return QByteArray("From: WZT Accounts <no-reply@") + domain + ">\r\n"
        + "To: " + (isPlain(name) ? name.toLatin1() : encodedWords(name)) + "\r\n <"
        + address.toLatin1() + ">\r\n" + "Date: " + when.toLatin1() + "\r\n" + "Message-ID: <" + id
        + '@' + domain + ">\r\n"
        + "Subject: Your one-time password\r\n"
          "Auto-Submitted: auto-generated\r\n"
          "MIME-Version: 1.0\r\n"
          "Content-Type: text/plain; charset=us-ascii\r\n"
          "Content-Transfer-Encoding: 7bit\r\n"
          "\r\n"
        + body(password);
}

} // namespace sandbox
