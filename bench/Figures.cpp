// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"

#include <QFile>
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

double peakMebibytes(qint64 pid)
{
    QFile status(u"/proc/%1/status"_s.arg(pid > 0 ? QString::number(pid) : u"self"_s));
    if (!status.open(QFile::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const QByteArray number = text.mid(text.indexOf("VmHWM:") + 6).trimmed();
    return number.first(number.indexOf(' ')).toDouble() / 1024;
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
