// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/base/NSLog.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

bool isLineBreakOrControl(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

} // namespace

void NSLog(const QString &message)
{
    QString line;
    line.reserve(message.size());
    for (const QChar c : message) {
        if (isLineBreakOrControl(c)) {
            line += u"\\u%1"_s.arg(static_cast<uint>(c.unicode()), 4, 16, QLatin1Char('0'));
        } else {
            line += c;
        }
    }
    qInfo().noquote() << line;
}
