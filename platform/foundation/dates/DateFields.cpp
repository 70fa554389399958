// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/dates/DateFields.h"

#include <QList>

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
    explicit FieldReader(const QString &text) : m_text(text.toUcs4()) {}

    [[nodiscard]] bool isAtEnd() const { return m_place == m_text.size(); }

    bool skip(QChar expected)
    {
        if (isAtEnd()) {
            return false;
        }
        const char32_t c = m_text[m_place++];
        return expected.isSpace() ? QChar::isSpace(c) : c == expected.unicode();
    }

    std::optional<int> number(qsizetype minimumDigits)
    {
        while (!isAtEnd() && QChar::isSpace(m_text[m_place])) {
            ++m_place;
        }
        const qsizetype first = m_place;
        int number = 0;
        for (; !isAtEnd() && QChar::isDigit(m_text[m_place]); ++m_place) {
            number = std::min(number * 10 + QChar::digitValue(m_text[m_place]), maximumField);
        }
        return m_place - first < minimumDigits ? std::nullopt : std::optional(number);
    }

private:
    const QList<uint> m_text;
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
