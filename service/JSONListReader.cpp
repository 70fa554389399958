// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/JSONListReader.h"

#include <QJsonDocument>

#include <utility>

namespace {

/// The least length of a piece, in bytes. The last piece may be shorter.
constexpr qsizetype pieceLength = 64LL * 1024;

/// The place after the string whose first quote is at `quote`, or the end of a text without its
/// last.
qsizetype endOfString(const QByteArray &text, qsizetype quote)
{
    for (qsizetype end = text.indexOf('"', quote + 1); end >= 0; end = text.indexOf('"', end + 1)) {
        qsizetype escape = end;
        while (text[escape - 1] == '\\') {
            --escape;
        }
        if ((end - escape) % 2 == 0) {
            return end + 1;
        }
    }
    return text.size();
}

/// Commas between elements of the outermost list, at least `pieceLength` apart. In invalid JSON
/// these may be any commas; a piece is then invalid as well.
QList<qsizetype> commasIn(const QByteArray &text)
{
    QList<qsizetype> commas;
    qsizetype next = pieceLength;
    int depth = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"') {
            at = endOfString(text, at) - 1;
        } else if (c == '[' || c == '{') {
            ++depth;
        } else if (c == ']' || c == '}') {
            --depth;
        } else if (c == ',' && depth == 1 && at >= next) {
            commas.append(at);
            next = at + pieceLength;
        }
    }
    return commas;
}

} // namespace

JSONListReader::JSONListReader(QByteArray text)
    : m_text(std::move(text)), m_commas(commasIn(m_text))
{
}

std::optional<QJsonArray> JSONListReader::takeLast()
{
    const bool isOnly = m_commas.isEmpty() && !m_wasTaken;
    m_wasTaken = true;
    m_hasMore = !m_commas.isEmpty();
    const qsizetype begin = m_hasMore ? m_commas.takeLast() : 0;
    if (m_hasMore) {
        m_text[begin] = '[';
    }
    const QJsonDocument piece = QJsonDocument::fromJson(
        QByteArray::fromRawData(m_text.constData() + begin, m_text.size() - begin));
    m_text.truncate(begin);
    m_text.append(']');
    m_text.squeeze();
    // Between two commas there is an element.
    const bool isList = piece.isArray() && (isOnly || !piece.array().isEmpty());
    return isList ? std::optional(piece.array()) : std::nullopt;
}
