// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"

#include <QLatin1StringView>
#include <QStringList>

#include <chrono>
#include <span>

namespace sandbox {

/// The words after the fault's name. Remembers whether one of them was invalid.
class FaultArguments {
public:
    explicit FaultArguments(QStringList words) : m_words(std::move(words)) {}

    QString text(int index) const { return m_words[index]; }
    QByteArray bytes(int index) const { return m_words[index].toUtf8(); }
    int number(int index, int least, int most)
    {
        bool isNumber = false;
        const int number = m_words[index].toInt(&isNumber);
        m_areValid = m_areValid && isNumber && number >= least && number <= most;
        return number;
    }
    std::chrono::milliseconds time(int index);
    void refuse() { m_areValid = false; }
    bool areValid() const { return m_areValid; }

private:
    QStringList m_words;
    bool m_areValid = true;
};

/// A word that stands for a fault, with arguments.
struct FaultWord {
    QLatin1StringView word;
    int argumentCount;
    Fault (*make)(FaultArguments &);
    const char *help;
};

/// All faults that a line can stage.
std::span<const FaultWord> faultWords();

} // namespace sandbox
