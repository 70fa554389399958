// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>
#include <vector>

/// The cases of a data-driven test: tuples that begin with a name, or structs with a `name`.
///
///     using Reading = std::tuple<const char *, QString, int>;
///
///     void reads_data() { addCases<Reading>({{"nothing", u""_s, 0}, {"seven", u"7"_s, 7}}); }
///     void reads()
///     {
///         const auto &[name, text, number] = currentCase<Reading>();
template <typename Case>
std::vector<Case> &casesOf()
{
    static std::vector<Case> cases;
    return cases;
}

template <typename Case>
void addCases(std::vector<Case> cases)
{
    QTest::addColumn<std::size_t>("index");
    for (std::size_t index = 0; index < cases.size(); ++index) {
        if constexpr (requires { cases[index].name; }) {
            QTest::newRow(cases[index].name) << index;
        } else {
            QTest::newRow(std::get<0>(cases[index])) << index;
        }
    }
    casesOf<Case>() = std::move(cases);
}

template <typename Case>
const Case &currentCase()
{
    QFETCH(const std::size_t, index);
    return casesOf<Case>().at(index);
}
