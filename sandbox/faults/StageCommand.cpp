// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/StageCommand.h"

#include "sandbox/faults/CommandSyntax.h"
#include "sandbox/faults/FaultWords.h"
#include "sandbox/faults/StagedFaults.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr std::array<std::pair<QLatin1StringView, ConnectionKind>, 7> connectionKinds{{
    {"normal"_L1, ConnectionKind::Normal},
    {"expired"_L1, ConnectionKind::Expired},
    {"wrong-host"_L1, ConnectionKind::WrongHost},
    {"untrusted"_L1, ConnectionKind::Untrusted},
    {"old-tls"_L1, ConnectionKind::OldTls},
    {"late"_L1, ConnectionKind::LateHandshake},
    {"mute"_L1, ConnectionKind::NoHandshake},
}};

// The optional count after the first `before` words; nil if it is invalid or not the last word.
std::optional<int> countIn(const QStringList &words, qsizetype before)
{
    if (words.size() == before) {
        return 1;
    }
    bool isNumber = false;
    const int count = words[before].toInt(&isNumber);
    return words.size() == before + 1 && isNumber && count != 0 ? std::optional(count)
                                                                : std::nullopt;
}

QString stageConnection(StagedFaults &staged, const QStringList &words)
{
    for (const auto &[word, kind] : connectionKinds) {
        if (words.value(1) != word) {
            continue;
        }
        const auto count = countIn(words, 2);
        if (!count) {
            return u"the count is no number, or not the last word"_s;
        }
        staged.stageConnection(kind, *count);
        return {};
    }
    return u"unknown kind of connection"_s;
}

QString stageFault(StagedFaults &staged, const QStringList &words)
{
    for (const FaultWord &each : faultWords()) {
        if (words.value(1) != each.word) {
            continue;
        }
        const qsizetype before = 2 + each.argumentCount;
        const auto count = words.size() < before ? std::nullopt : countIn(words, before);
        if (!count) {
            return u"too few or too many words, or a count that is no number"_s;
        }
        FaultArguments arguments(words.mid(2, each.argumentCount));
        const Fault fault = each.make(arguments);
        if (!arguments.areValid()) {
            return u"an argument is not what it should be"_s;
        }
        staged.stage(words[0].toUtf8(), fault, *count);
        return {};
    }
    return u"unknown fault"_s;
}

} // namespace

QString stageLine(StagedFaults &staged, const QString &line)
{
    const QStringList words = splitWords(line);
    if (words == QStringList(u"clear"_s)) {
        staged.clear();
        return {};
    }
    if (words.value(0) == "connection"_L1) {
        return stageConnection(staged, words);
    }
    if (words.isEmpty() || (words[0] != "*"_L1 && !words[0].startsWith(u'/'))) {
        return u"a line begins with a path, *, connection or clear"_s;
    }
    return stageFault(staged, words);
}

QString stageCommandHelp()
{
    QString help;
    for (const FaultWord &each : faultWords()) {
        help += "  PATH "_L1 + QString::fromLatin1(each.help) + u'\n';
    }
    for (const auto &[word, kind] : connectionKinds) {
        help += "  connection "_L1 + word + u'\n';
    }
    return help + "  clear\n"_L1;
}

} // namespace sandbox
