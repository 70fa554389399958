// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSNumberReading.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>

// JSON, and what it reads as; the text is "nil" where there is none.
using Reading = std::tuple<const char *, int, bool, const char *>;

class NumberReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        addCases<Reading>({
            {R"(0)", 0, false, "0"},
            {R"(-3)", -3, true, "-3"},
            {R"(2.9)", 2, true, "2.9"},
            {R"(1e3)", 1000, true, "1000"},
            {R"(2147483648)", INT_MAX, true, "2147483648"},
            {R"(-2147483649)", INT_MIN, true, "-2147483649"},
            {R"(9007199254740993)", INT_MAX, true, "9007199254740993"},
            {R"(-1e300)", INT_MIN, true, nullptr},
            {R"("")", 0, false, ""},
            {R"("12abc")", 12, true, "12abc"},
            {R"("abc")", 0, false, "abc"},
            {R"(" \t\n-7 ")", -7, true, " \t\n-7 "},
            {R"("+5")", 5, true, "+5"},
            {R"("- 5")", 0, true, "- 5"},
            {R"("0x10")", 0, false, "0x10"},
            {R"("-99999999999999999999999")", INT_MIN, true, "-99999999999999999999999"},
            {R"("\u0663")", 0, false, "\u0663"},
            {R"(" -0001")", -1, true, " -0001"},
            {R"("true")", 0, true, "true"},
            {R"("YES")", 0, true, "YES"},
            {R"("Tru")", 0, true, "Tru"},
            {R"("false")", 0, false, "false"},
            {R"(true)", 1, true, "nil"},
            {R"(false)", 0, false, "nil"},
            {R"(null)", 0, false, "nil"},
            {R"([1])", 0, false, "nil"},
            {R"({"a":1})", 0, false, "nil"},
        });
    }

    void reads()
    {
        const auto &[json, integer, boolean, text] = currentCase<Reading>();
        const QJsonArray array = QJsonDocument::fromJson("[" + QByteArray(json) + "]").array();
        QCOMPARE(array.size(), 1);
        QCOMPARE(intValue(array.at(0)), integer);
        QCOMPARE(boolValue(array.at(0)), boolean);
        const QString read = textValue(array.at(0)).value_or(QStringLiteral("nil"));
        if (text)
            QCOMPARE(read, QString::fromUtf8(text));
        else // a number too long to write down: plain digits all the same
            QVERIFY(!read.contains(u'e') && !read.contains(u'.') && read.size() > 300);
    }

    void missingValueIsNothing()
    {
        const QJsonValue missing(QJsonValue::Undefined);
        QCOMPARE(intValue(missing), 0);
        QVERIFY(!boolValue(missing) && !textValue(missing));
    }
};

WZT_TEST(NumberReadingTest)
#include "NumberReadingTest.moc"
