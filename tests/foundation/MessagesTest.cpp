// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/Dispatch.h"
#include "platform/foundation/NSLog.h"
#include "tests/support/TestRunner.h"

#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

QStringList logged;

void record(QtMsgType type, const QMessageLogContext &, const QString &line)
{
    logged.append(QString::number(int(type)) + u' ' + line);
}

} // namespace

class MessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dispatchesInOrderOnTheMainThread()
    {
        QList<int> order;
        const auto append = [&, main = std::this_thread::get_id()](int number) {
            dispatchAsyncMain([&order, number, main] {
                order.append(std::this_thread::get_id() == main ? number : -number);
            });
        };
        append(1);
        std::thread([&] { append(2), append(3); }).join();
        dispatchAsyncMain([&] { append(5); });
        append(4);
        QVERIFY(order.isEmpty());
        QTRY_COMPARE(order, (QList<int>{1, 2, 3, 4, 5}));
    }

    void logsOneLine()
    {
        logged.clear();
        const QtMessageHandler previous = qInstallMessageHandler(record);
        NSLog(u"Title: \"é 😀\" 100%\r\nforged\0\x1b[31m\u0085\u2028 %@"_s);
        qInstallMessageHandler(previous);
        QCOMPARE(logged,
                 QStringList{u"4 Title: \"é 😀\" 100%\\u000d\\u000aforged\\u0000\\u001b[31m\\u0085"
                             "\\u2028 %@"_s});
    }
};

WZT_TEST(MessagesTest)
#include "MessagesTest.moc"
