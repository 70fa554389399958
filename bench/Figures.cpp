// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"

#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int nameWidth = 34;
constexpr int cellWidth = 9;

void print(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

} // namespace

double quantile(QList<double> values, double share)
{
    if (values.isEmpty()) {
        return 0;
    }
    const auto at =
        values.begin() + static_cast<qsizetype>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

Table::Table(const QString &title, const QStringList &columns)
{
    print(u'\n' + title);
    row({}, columns);
}

void Table::row(const QString &name, const QStringList &cells) const
{
    QString line = name.leftJustified(nameWidth);
    for (const QString &cell : cells) {
        line += cell.rightJustified(cellWidth);
    }
    print(line);
}

void Table::comparison(const QString &name, double figure, double floor) const
{
    row(name, {number(figure), number(floor), number(figure / floor)});
}

QString Table::number(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : 1);
}
