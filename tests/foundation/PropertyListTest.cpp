// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/PropertyList.h"

#include "harness/TestRunner.h"
#include "tests/foundation/BinaryList.h"

#include <bit>

namespace {

using ListRefusal = std::tuple<const char *, QByteArray>;

QByteArray xml(const QByteArray &value)
{
    return "<plist version=\"1.0\">" + value + "</plist>";
}

} // namespace

class PropertyListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void plainDatesAreExact()
    {
        for (const double seconds : {0.0, -0.25, -4e9, 1e12 + 0.5}) {
            const QByteArray bytes = BinaryList::number(std::bit_cast<quint64>(seconds), 8);
            const auto list = PropertyList::fromData(BinaryList::of({"\x33" + bytes}));
            QVERIFY(list && list->date() == NSDate{seconds});
        }
    }

    void refuses_data()
    {
        using namespace BinaryList;
        const QByteArray opening = QByteArray("<array>").repeated(65);
        const QByteArray closing = QByteArray("</array>").repeated(65);
        QVERIFY(PropertyList::fromData(xml("<string>&lt;&#228;<![CDATA[<]]></string>")));
        QByteArrayList chain;
        for (int i = 1; i <= 64; ++i) {
            chain.append("\xa1" + reference(i));
        }
        // Each item is reached from the top, and the next one from it.
        QByteArrayList ladder{"\xaf\x10\x64"};
        for (int i = 100; i >= 1; --i) {
            ladder[0] += reference(i);
        }
        for (int i = 1; i <= 100; ++i) {
            ladder.append("\xa1" + reference(i + 1));
        }
        // A list of a thousand lists, which are the same thousand references.
        QByteArray overlapping = "\xaf\x11\x03\xe8";
        for (int i = 1; i <= 1000; ++i) {
            overlapping += reference(i);
        }
        overlapping += "\xaf\x11\x03\xe8" + reference(1001).repeated(1000) + "\x09";
        QList<qsizetype> places(1001, 4004);
        places[0] = 0;
        QVERIFY(PropertyList::fromData(of(chain.mid(1) << "\x09"
                                                       << "\x09")));
        addCases<ListRefusal>({
            {"too long", xml("<array>" + QByteArray(65536, ' ') + "</array>")},
            {"empty", xml("")},
            {"two values", xml("<true/><true/>")},
            {"something after it", xml("<true/>") + "<true/>"},
            {"no end", "<plist version=\"1.0\"><dict>"},
            {"value without a key", xml("<dict><true/></dict>")},
            {"key without a value", xml("<dict><key>a</key></dict>")},
            {"no number", xml("<integer>5a</integer>")},
            {"no data", xml("<data>?</data>")},
            {"entity of its own",
             "<!DOCTYPE plist [<!ENTITY a 'a'>]>" + xml("<string>&a;</string>")},
            {"nested too deep", xml(opening + closing)},
            {"huge count of objects", of({"\x09"}, ~0ULL)},
            {"huge count of items", of({"\xaf\x13" + number(~0ULL, 8)})},
            {"huge length of text", of({"\x5f\x13" + number(~0ULL >> 1, 8)})},
            {"longer text than file", of({"\x5f\x11\xff\xff"})},
            {"size of a count", of({"\x5f\x14" + number(1, 16) + "a"})},
            {"type unknown", of({"\x70"})},
            {"number as a key", of({"\xd1" + reference(1) + reference(1), "\x10\x01"})},
            {"contains itself", of({"\xa1" + reference(0)})},
            {"refers to nothing", of({"\xa1" + reference(7)})},
            {"a long chain", of(chain << "\x09")},
            {"a long ladder", of(ladder << "\x09")},
            {"overlapping objects", around(overlapping, places << 8008, 1002)},
        });
    }

    void refuses() { QVERIFY(!PropertyList::fromData(std::get<1>(currentCase<ListRefusal>()))); }

    /// Each of ten lists holds the next one ten times: ten thousand million values, written out.
    void equalValuesAreWrittenOnce()
    {
        QByteArrayList lists;
        for (int i = 1; i <= 10; ++i) {
            lists.append("\xaa" + BinaryList::reference(i).repeated(10));
        }
        const QByteArray data = BinaryList::of(lists << "\x09");
        const auto list = PropertyList::fromData(data);
        QVERIFY(list && list->toData().size() <= data.size());
    }
};

WZT_TEST(PropertyListTest)
#include "PropertyListTest.moc"
