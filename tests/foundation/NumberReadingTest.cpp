// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/base/NumberReading.h"
#include "harness/TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>

class NumberReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        // A JSON value as an integer, as a boolean and as a text, "nil" where there is none.
        const std::tuple<const char *, int, bool, const char *> rows[] = {
            {R"(0)", 0, false, "0"},
            {R"(-2.9)", -2, true, "-2.9"},
            {R"(1e3)", 1000, true, "1000"},
            {R"(-2147483649)", INT_MIN, true, "-2147483649"},
            {R"(9007199254740993)", INT_MAX, true, "9007199254740993"},
            {R"(1e22)", INT_MAX, true, "10000000000000000000000"},
            {R"("")", 0, false, ""},
            {R"("12abc")", 12, true, "12abc"},
            {R"(" \t\n-7 ")", -7, true, " \t\n-7 "},
            {R"("+5")", 5, true, "+5"},
            {R"("- 5")", 0, true, "- 5"},
            {R"("0x10")", 0, false, "0x10"},
            {R"("-99999999999999999999999")", INT_MIN, true, "-99999999999999999999999"},
            {R"("٣")", 0, false, "٣"},
            {R"("YES")", 0, true, "YES"},
            {R"("tru")", 0, true, "tru"},
            {R"("false")", 0, false, "false"},
            {R"(true)", 1, true, "nil"},
            {R"(null)", 0, false, "nil"},
            {R"([1])", 0, false, "nil"},
            {R"({"a":1})", 0, false, "nil"},
        };
        for (const auto &[json, integer, boolean, text] : rows) {
            const QByteArray list = '[' + QByteArray(json) + ']';
            const QJsonValue value = QJsonDocument::fromJson(list).array().at(0);
            const QString read = textValue(value).value_or(QStringLiteral("nil"));
            QVERIFY2(intValue(value) == integer && boolValue(value) == boolean
                         && read == QString::fromUtf8(text),
                     json);
        }
    }
};

WZT_TEST(NumberReadingTest)
#include "NumberReadingTest.moc"
