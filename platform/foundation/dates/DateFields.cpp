// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/dates/DateFields.h"

#include <QStringView>

#include <algorithm>

namespace {

/// Beyond every valid field, and one more digit cannot overflow it.
constexpr int maximumField = 100000000;

struct Letter {
    char16_t letter;
    int DateFields::*field;
};
constexpr Letter letters[] = {
    {u'y', &DateFields::year}, {u'M', &DateFields::month},  {u'd', &DateFields::day},
    {u'H', &DateFields::hour}, {u'm', &DateFields::minute}, {u's', &DateFields::second},
};

/// Reads a text once from beginning to end.
class FieldReader {
public:
    explicit FieldReader(QStringView text) : m_text(text) {}

    [[nodiscard]] bool isAtEnd() const { return m_place == m_text.size(); }

    bool skip(QChar expected)
    {
        if (isAtEnd()) {
            return false;
        }
        const char32_t c = next();
        return expected.isSpace() ? QChar::isSpace(c) : c == expected.unicode();
    }

    std::optional<int> number(qsizetype minimumDigits)
    {
        while (!isAtEnd() && m_text[m_place].isSpace()) {
            ++m_place;
        }
        int number = 0;
        qsizetype digits = 0;
        for (auto digit = nextDigit(); digit; digit = nextDigit()) {
            number = std::min(number * 10 + *digit, maximumField);
            ++digits;
        }
        return digits < minimumDigits ? std::nullopt : std::optional(number);
    }

private:
    char32_t next()
    {
        const QChar c = m_text[m_place++];
        if (!c.isSurrogate()) {
            return c.unicode();
        }
        if (!c.isHighSurrogate() || isAtEnd() || !m_text[m_place].isLowSurrogate()) {
            return QChar::ReplacementCharacter;
        }
        return QChar::surrogateToUcs4(c, m_text[m_place++]);
    }

    /// Stays before anything else.
    std::optional<int> nextDigit()
    {
        if (isAtEnd()) {
            return std::nullopt;
        }
        const qsizetype before = m_place;
        const char32_t c = next();
        if (c >= U'0' && c <= U'9') {
            return static_cast<int>(c - U'0');
        }
        if (QChar::isDigit(c)) {
            return QChar::digitValue(c);
        }
        m_place = before;
        return std::nullopt;
    }

    const QStringView m_text;
    qsizetype m_place = 0;
};

} // namespace

std::optional<DateFields> readDateFields(const QString &pattern, const QString &text)
{
    DateFields fields;
    FieldReader reader(text);
    for (auto c = pattern.begin(); c != pattern.end();) {
        if (!c->isLetter()) {
            if (!reader.skip(*c++)) {
                return std::nullopt;
            }
            continue;
        }
        const auto *known = std::find_if(std::begin(letters), std::end(letters),
                                         [&](const Letter &row) { return *c == row.letter; });
        const auto next = std::find_if(c, pattern.end(), [&](QChar other) { return other != *c; });
        const auto number = reader.number(next - c);
        if (known == std::end(letters) || !number) {
            return std::nullopt;
        }
        fields.*known->field = *number;
        c = next;
    }
    return reader.isAtEnd() ? std::optional(fields) : std::nullopt;
}
