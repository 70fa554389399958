// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/StageCommand.h"

#include "sandbox/faults/CommandWords.h"
#include "sandbox/faults/StagedFaults.h"

#include <QStringList>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace sandbox {

namespace {

constexpr int day = 24 * 3600 * 1000;

/// The words after the fault's name; a word that is not what it should be is remembered.
class Arguments {
public:
    explicit Arguments(QStringList words) : m_words(std::move(words)) {}

    QString text(int index) const { return m_words[index]; }
    QByteArray bytes(int index) const { return m_words[index].toUtf8(); }
    int number(int index, int least, int most)
    {
        bool isNumber = false;
        const int number = m_words[index].toInt(&isNumber);
        m_areValid = m_areValid && isNumber && number >= least && number <= most;
        return number;
    }
    milliseconds time(int index) { return milliseconds(number(index, 0, day)); }
    void refuse() { m_areValid = false; }
    bool areValid() const { return m_areValid; }

private:
    QStringList m_words;
    bool m_areValid = true;
};

Fault redirect(Arguments &arguments)
{
    const QString where = arguments.text(0);
    if (where == "loop"_L1) {
        return Fault::redirectLoop();
    }
    if (where == "further"_L1) {
        return Fault::redirectFurther();
    }
    if (where == "http"_L1) {
        return Fault::redirectToHttp();
    }
    if (where == "host"_L1) {
        return Fault::redirectToOtherHost();
    }
    if (where.startsWith(u'/')) {
        return Fault::redirectToPath(where.toUtf8());
    }
    if (!where.contains("://"_L1)) {
        arguments.refuse();
    }
    return Fault::redirect(where.toUtf8());
}

struct FaultWord {
    QLatin1StringView word;
    int argumentCount;
    Fault (*make)(Arguments &);
    const char *help;
};

constexpr int maximum = std::numeric_limits<int>::max();

constexpr std::array faultWords{
    FaultWord{"delay"_L1, 1, [](Arguments &a) { return Fault::delay(a.time(0)); },
              "delay MS               the real answer, so many milliseconds later"},
    FaultWord{"silence"_L1, 0, [](Arguments &) { return Fault::silence(); },
              "silence                accepted and never answered"},
    FaultWord{"close"_L1, 0, [](Arguments &) { return Fault::close(); },
              "close                  closed without an answer"},
    FaultWord{"reset"_L1, 0, [](Arguments &) { return Fault::reset(); },
              "reset                  half the real answer, then a TCP reset"},
    FaultWord{
        "cut"_L1, 1, [](Arguments &a) { return Fault::cut(a.number(0, 0, maximum)); },
        "cut BYTES              so much of the real answer, then TCP is closed and TLS is not"},
    FaultWord{"length"_L1, 1,
              [](Arguments &a) { return Fault::wrongLength(a.number(0, -maximum, maximum)); },
              "length DIFFERENCE      the real answer, its Content-Length off by so many bytes"},
    FaultWord{"unmeasured"_L1, 0,
              [](Arguments &) { return Fault().withoutLength().ending(Transmission::Ending::Cut); },
              "unmeasured             the real answer without a length, then TCP is closed and TLS "
              "is not"},
    FaultWord{"gzip"_L1, 1, [](Arguments &a) { return Fault::gzip(a.number(0, 0, maximum)); },
              "gzip MISSING           the real answer compressed, less so many bytes at its end"},
    FaultWord{"surplus"_L1, 1, [](Arguments &a) { return Fault::surplus(unescape(a.bytes(0))); },
              "surplus BYTES          the real answer, and a moment later these bytes"},
    FaultWord{"drip"_L1, 2,
              [](Arguments &a) { return Fault::drip(a.number(0, 1, maximum), a.time(1)); },
              "drip BYTES MS          the real answer in pieces, with pauses"},
    FaultWord{"status"_L1, 1, [](Arguments &a) { return Fault::status(a.number(0, 200, 999)); },
              "status CODE            the real answer under another HTTP status"},
    FaultWord{"json"_L1, 2,
              [](Arguments &a) { return Fault::json(a.bytes(1), a.number(0, 200, 999)); },
              "json CODE BODY         this body under this HTTP status"},
    FaultWord{
        "raw"_L1, 1, [](Arguments &a) { return Fault::raw(unescape(a.bytes(0))); },
        "raw BYTES              these bytes and nothing else; \\r \\n \\t \\\\ \\xNN are bytes"},
    FaultWord{"endless"_L1, 0, [](Arguments &) { return Fault::endless(); },
              "endless                a body without an end"},
    FaultWord{"key-updates"_L1, 1,
              [](Arguments &a) { return Fault::keyUpdates(a.number(0, 1, maximum)); },
              "key-updates NUMBER     the real answer after so many TLS key updates"},
    FaultWord{"redirect"_L1, 1, redirect,
              "redirect WHERE         loop, further, http, host (this service's other name), "
              "/path, a URL"},
};

constexpr std::array<std::pair<QLatin1StringView, ConnectionKind>, 7> connectionKinds{{
    {"normal"_L1, ConnectionKind::Normal},
    {"expired"_L1, ConnectionKind::Expired},
    {"wrong-host"_L1, ConnectionKind::WrongHost},
    {"untrusted"_L1, ConnectionKind::Untrusted},
    {"old-tls"_L1, ConnectionKind::OldTls},
    {"late"_L1, ConnectionKind::LateHandshake},
    {"mute"_L1, ConnectionKind::NoHandshake},
}};

// The number that may follow the `before` first words, and must be the last.
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
    for (const FaultWord &each : faultWords) {
        if (words.value(1) != each.word) {
            continue;
        }
        const qsizetype before = 2 + each.argumentCount;
        const auto count = words.size() < before ? std::nullopt : countIn(words, before);
        if (!count) {
            return u"too few or too many words, or a count that is no number"_s;
        }
        Arguments arguments(words.mid(2, each.argumentCount));
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
    for (const FaultWord &each : faultWords) {
        help += "  PATH "_L1 + QString::fromLatin1(each.help) + u'\n';
    }
    for (const auto &[word, kind] : connectionKinds) {
        help += "  connection "_L1 + word + u'\n';
    }
    return help + "  clear\n"_L1;
}

} // namespace sandbox
