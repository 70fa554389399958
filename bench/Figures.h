// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>

using Milliseconds = std::chrono::duration<double, std::milli>;

/// The value that `share` (0 to 1) of the values are not above; 0 for no values.
[[nodiscard]] double quantile(QList<double> values, double share);
[[nodiscard]] inline double median(const QList<double> &values)
{
    return quantile(values, 0.5);
}

/// How many milliseconds `work` takes.
template <typename Work>
[[nodiscard]] double timed(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

/// The most memory that the process, 0 for this one, has had so far.
[[nodiscard]] double peakMebibytes(qint64 pid = 0);

/// Prints one table on the standard output, row by row as they come.
class Table {
public:
    /// `columns` are those beside the first, which holds the names.
    Table(const QString &title, const QStringList &columns);

    void row(const QString &name, const QStringList &cells) const;
    /// A figure beside its floor, and how many times that it is.
    void comparison(const QString &name, double figure, double floor) const;

    [[nodiscard]] static QString number(double value);
};
