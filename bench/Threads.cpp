// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Threads.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Empty for a thread that has ended.
QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 numberAfter(const QByteArray &text, QByteArrayView name)
{
    const qsizetype begin = text.indexOf(name);
    return begin < 0 ? 0 : text.mid(begin + name.size()).split('\n').first().trimmed().toLongLong();
}

} // namespace

QMap<int, ThreadWork> threadsOf(qint64 pid)
{
    QMap<int, ThreadWork> threads;
    const QString folder = u"/proc/%1/task/"_s.arg(pid);
    for (const QString &thread : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray status = contents(folder + thread + "/status"_L1);
        const double nanoseconds =
            contents(folder + thread + "/schedstat"_L1).split(' ').first().toDouble();
        threads[thread.toInt()] = {
            QString::fromLocal8Bit(contents(folder + thread + "/comm"_L1).trimmed()),
            numberAfter(status, "\nvoluntary_ctxt_switches:")
                + numberAfter(status, "\nnonvoluntary_ctxt_switches:"),
            nanoseconds / 1e6,
        };
    }
    return threads;
}
