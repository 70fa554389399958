// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/AccountRules.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr qsizetype longestAddress = 254;
constexpr qsizetype longestName = 100;
constexpr auto digestOfNothing =
    "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_L1;

bool isShown(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category != QChar::Other_Control && category != QChar::Separator_Line
        && category != QChar::Separator_Paragraph;
}

} // namespace

bool isAddress(const QString &text)
{
    static const QRegularExpression pattern(
        uR"(\A(?=.{1,64}@)[a-z0-9!#$%&'*+/=?^_`{|}~-]+(\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*)"
        uR"(@[a-z0-9]([a-z0-9-]{0,61}[a-z0-9])?(\.[a-z0-9]([a-z0-9-]{0,61}[a-z0-9])?)*\z)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return text.size() <= longestAddress && pattern.match(text).hasMatch();
}

bool isName(const QString &text)
{
    const auto characters = text.toUcs4();
    return !text.trimmed().isEmpty() && characters.size() <= longestName
        && std::all_of(characters.begin(), characters.end(), isShown);
}

bool isDigest(const QString &text)
{
    static const QRegularExpression pattern(u"\\A[0-9a-f]{64}\\z"_s);
    return pattern.match(text).hasMatch() && text != digestOfNothing;
}

} // namespace sandbox
