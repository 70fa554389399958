// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/DemoIssues.h"

#include "sandbox/endpoints/Packages.h"

#include <QDateTime>

#include <random>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

/// How many issues each package has, in the order of packages().
constexpr int counts[] = {12, 3, 2000, 0, 5, 2};

constexpr QStringView symptoms[] = {
    u"Crash",         u"Freeze",
    u"Blank page",    u"Wrong colours",
    u"Battery drain", u"Nothing happens",
    u"Text cut off",  u"Keyboard covers the field",
    u"Settings lost", u"Sound plays twice",
    u"Icons overlap", u"Endless spinner",
};
constexpr QStringView occasions[] = {
    u"after a respring",     u"on launch",          u"when rotating the device",
    u"with a passcode set",  u"in landscape",       u"while charging",
    u"after updating",       u"in dark mode",       u"with large text",
    u"when a call comes in", u"on the lock screen", u"after waking from sleep",
};
constexpr QStringView sentences[] = {
    u"It started with the last update.",
    u"Happens every time.",
    u"I found no way around it, other than switching it off and waiting for a minute or two.",
    u"Reinstalling did not help.",
    u"Before that it had worked for months, so thank you for all the work on it!",
    u"Only on the older of my two devices; the other one, with the same settings, never shows it.",
    u"Safe mode makes no difference.",
    u"Sometimes it comes back by itself.",
    u"A friend of mine sees the same.",
    u"Nothing in the log that I would understand.",
    u"If you need anything else, ask.",
    u"Das passiert auch bei größer als üblich eingestelltem Text und übermäßig vielen Symbolen.",
};
constexpr auto repeatedSteps =
    u"Steps:\n1. Open Settings\n2. Switch it off and on again\n3. Lock the "
    u"device and wait\n\nExpected: all is as before\nActual: ";

/// Unusual texts. Each is added to every twelfth issue, so that a dozen issues have all of them.
struct Oddity {
    QStringView title;
    QStringView description;
};
constexpr Oddity oddities[12] = {
    {},
    {u" 😱", u" 😭😭😭 👩‍👩‍👧‍👦 🇨🇭 please 🙏🏽"},
    {},
    {u" في الوضع الداكن", u" التطبيق يتوقف عن العمل (الإصدار 2.1) بعد إعادة التشغيل."},
    {u" at com.example.AnExtraordinarilyLongClassNameThatNobodyWouldEverWriteByHandController",
     u" /var/device/storage/logs/crash-reports/"
     u"DiagnosticMessages_HomeScreens-2024-02-29-235959_with-no-blank-anywhere-in-its-whole-name-"
     u"so-that-it-has-to-be-broken-somewhere.txt.synced"},
    {},
    {u" and then again, but only sometimes, and never while anybody is looking at the screen, "
     u"which makes it rather hard to describe in a single line of text as I am asked to",
     u""},
    {},
    {u" כשהמסך נעול", u" זה קורה גם ב־App 14 וגם ב־13.5."},
    {},
    {u" „Größe“ → 12½ %", u" <b>not bold</b> &amp; \"quoted\" \\ %41 %@"},
    {u"", u" Η επανεκκίνηση δεν βοηθά. Συμβαίνει κάθε φορά που ανοίγω τις ρυθμίσεις."},
};

/// Generates the same numbers on every machine and at every start.
class Dice {
public:
    explicit Dice(quint32 seed) : m_numbers(seed) {}

    quint32 below(quint32 end) { return static_cast<quint32>(m_numbers()) % end; }
    template <size_t size>
    QString one(const QStringView (&of)[size])
    {
        return of[below(size)].toString();
    }

private:
    std::mt19937 m_numbers;
};

std::optional<QString> description(Dice &dice)
{
    constexpr quint32 longest[] = {0, 1, 1, 2, 2, 3, 4, 12};
    const quint32 kind = dice.below(10);
    if (kind >= std::size(longest)) {
        return repeatedSteps + dice.one(symptoms) + u' ' + dice.one(occasions);
    }
    if (longest[kind] == 0) {
        return {};
    }
    // The step visits every sentence before it repeats one.
    quint32 next = dice.below(std::size(sentences));
    QString text = sentences[next].toString();
    for (quint32 left = dice.below(longest[kind]); left > 0; --left) {
        next = static_cast<quint32>((next + 5) % std::size(sentences));
        text += (dice.below(4) == 0 ? u"\n\n"_s : u" "_s) + sentences[next];
    }
    return text;
}

Issue demoIssue(Dice &dice, const Oddity &oddity)
{
    Issue issue{
        .reference = QString::number(0x10000000 + dice.below(0x70000000), 16),
        .reporter = dice.below(4),
        .title = dice.one(symptoms) + u' ' + dice.one(occasions) + oddity.title,
        .description = description(dice),
        .isOpen = dice.below(3) > 0,
    };
    if (!oddity.description.isEmpty()) {
        const QString text = issue.description.value_or(QString()) + oddity.description;
        issue.description = text.trimmed();
    }
    return issue;
}

} // namespace

QList<Issue> demoIssues()
{
    constexpr quint32 longestPause = 26 * 3600;
    QList<Issue> issues;
    for (qsizetype package = 0; package < packages().size(); ++package) {
        Dice dice{static_cast<quint32>(package)};
        QDateTime opened(QDate(2025, 9, 30), QTime(21, 40, 17));
        for (int i = 0; i < counts[package]; ++i) {
            Issue issue = demoIssue(dice, oddities[static_cast<size_t>(i) % std::size(oddities)]);
            issue.package = packages()[package];
            opened = opened.addSecs(-1 - static_cast<qint64>(dice.below(longestPause)));
            issue.opened = opened.toString(u"yyyy-MM-dd HH:mm:ss"_s);
            issues.prepend(issue);
        }
    }
    return issues;
}

} // namespace sandbox
