// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/CommandSyntax.h"

namespace sandbox {

QStringList splitWords(const QString &line)
{
    QStringList words;
    QString word;
    bool isQuoted = false;
    bool isWord = false;
    for (const QChar c : line) {
        if (c == u'\'') {
            isQuoted = !isQuoted;
            isWord = true;
        } else if (c.isSpace() && !isQuoted) {
            words += isWord ? QStringList(word) : QStringList();
            word.clear();
            isWord = false;
        } else {
            word += c;
            isWord = true;
        }
    }
    return isWord ? words << word : words;
}

QByteArray unescape(const QByteArray &text)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        const qsizetype kind = next ? QByteArrayView("rnt\\x").indexOf(next) : -1;
        if (text[i] != '\\' || kind < 0) {
            bytes.append(text[i]);
        } else if (next == 'x') {
            bytes.append(QByteArray::fromHex(text.mid(i + 2, 2)));
            i += 3;
        } else {
            bytes.append("\r\n\t\\"[kind]);
            ++i;
        }
    }
    return bytes;
}

} // namespace sandbox
