// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSKeyedArchiver.h"
#include "platform/foundation/NSKeyedUnarchiver.h"
#include "platform/foundation/PropertyList.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto recordClass = "Record"_L1;

struct Record {
    int number = 0;
    QString name;
    std::optional<QString> alias;
    std::optional<NSDate> date;
    bool flag = false;

    bool operator==(const Record &) const = default;

    void encodeWithCoder(NSCoder &coder) const
    {
        coder.encodeObject(number, u"number"_s);
        coder.encodeObject(name, u"name"_s);
        coder.encodeObject(alias, u"alias"_s);
        coder.encodeObject(date, u"date"_s);
        coder.encodeBool(flag, u"flag"_s);
    }
};

std::optional<QByteArray> archived(const Record &record)
{
    return NSKeyedArchiver::archivedDataWithRootObject(record, recordClass);
}

std::optional<Record> unarchived(const QByteArray &data)
{
    const auto coder = NSKeyedUnarchiver::unarchiveObjectWithData(data, recordClass);
    if (!coder) {
        return std::nullopt;
    }
    return Record{coder->decodeIntForKey(u"number"_s),
                  coder->decodeStringForKey(u"name"_s).value_or(u"nil"_s),
                  coder->decodeStringForKey(u"alias"_s), coder->decodeDateForKey(u"date"_s),
                  coder->decodeBoolForKey(u"flag"_s)};
}

/// Made by another writer: shared objects, a class before its objects, a mutable string.
const QByteArray foreignArchive = QByteArray::fromBase64(
    "YnBsaXN0MDDUAQIDBAUGBwpYJHZlcnNpb25ZJGFyY2hpdmVyVCR0b3BYJG9iamVjdHMSAAGGoF8QD05T"
    "S2V5ZWRBcmNoaXZlctEICVRyb290gASpCwwSFRoqKywwVSRudWxs0g0ODxBaJGNsYXNzbmFtZVgkY2xh"
    "c3Nlc1ZOU0RhdGWiDxFYTlNPYmplY3TSDQ4TFFZSZWNvcmSiExHSFhcYGVYkY2xhc3NXTlMudGltZYAB"
    "I0HBgi1SwAAA2BYbHB0eHyAhIiMkJSYnKClWbnVtYmVyVG5hbWVVYWxpYXNUbWFpbFRub25lVGRhdGVU"
    "ZmxhZ4ACgAWABoAGgAeAAIADCRAqZgBKAPwAcgBnAGUAbtItFi4vWU5TLnN0cmluZ15qb0B3enQuZXhh"
    "bXBsZYAI0g0OMTJfEA9OU011dGFibGVTdHJpbmejMTMRWE5TU3RyaW5nAAgAEQAaACQAKQAyADcASQBM"
    "AFEAUwBdAGMAaABzAHwAgwCGAI8AlACbAJ4AowCqALIAtAC9AM4A1QDaAOAA5QDqAO8A9AD2APgA+gD8"
    "AP4BAAECAQMBBQESARcBIQEwATIBNwFJAU0AAAAAAAACAQAAAAAAAAA0AAAAAAAAAAAAAAAAAAABVg==");

/// An archive in XML around these objects, in short: `@n` stands for the UID n, i, r, s and k for
/// integer, real, string and key.
QByteArray xmlArchive(const QByteArray &objects, const QByteArray &root = "@1",
                      const QByteArray &header = "<k>$version</k><i>100000</i>"
                                                 "<k>$archiver</k><s>Keyed</s>")
{
    QString text = QString::fromUtf8(
        "<plist version=\"1.0\"><dict>" + header + "<k>$top</k><dict><k>root</k>" + root
        + "</dict><k>$objects</k><array><s>$null</s>" + objects + "</array></dict></plist>");
    const std::pair<const char *, const char *> replacements[] = {
        {"@(.)", "<dict><k>CF$UID</k><i>\\1</i></dict>"},
        {"<(/?)i>", "<\\1integer>"},
        {"<(/?)r>", "<\\1real>"},
        {"<(/?)s>", "<\\1string>"},
        {"<(/?)k>", "<\\1key>"}};
    for (const auto &[before, after] : replacements) {
        text.replace(QRegularExpression(QString::fromLatin1(before)), QString::fromLatin1(after));
    }
    return text.toUtf8();
}

const QByteArray recordDescription = "<dict><k>$classname</k><s>Record</s></dict>";

/// A record of one value, which may refer to the objects from @3 on.
QByteArray archiveOf(const QByteArray &key, const QByteArray &value, const QByteArray &more = {})
{
    return xmlArchive("<dict><k>$class</k>@2<k>" + key + "</k>" + value + "</dict>"
                      + recordDescription + more);
}

/// The object @3, of the class @4.
QByteArray objectOf(const QByteArray &className, const QByteArray &values)
{
    return "<dict><k>$class</k>@4" + values + "</dict><dict><k>$classname</k><s>" + className
        + "</s></dict>";
}

/// A binary property list of these objects, references and offsets of four bytes.
QByteArray binary(const QByteArrayList &objects, quint64 count)
{
    QByteArray data = "bplist00";
    QByteArray offsets;
    const auto append = [](QByteArray &to, quint64 number, int size) {
        for (int shift = 8 * size - 8; shift >= 0; shift -= 8) {
            to.append(char(number >> shift));
        }
    };
    for (const QByteArray &object : objects) {
        append(offsets, quint64(data.size()), 4);
        data += object;
    }
    const auto table = quint64(data.size());
    data += offsets + QByteArray(6, '\0') + "\4\4";
    append(data, count, 8);
    append(data, 0, 8);
    append(data, table, 8);
    return data;
}

QByteArray reference(int index)
{
    return QByteArray("\0\0", 2) + char(index >> 8) + char(index);
}

using Refusal = std::tuple<const char *, QByteArray>;

} // namespace

class KeyedArchiveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        for (const Record &record : {
                 Record{17, u"Jürgen 😀"_s, u"jo"_s, NSDate{587487909.25}, true},
                 Record{0, u""_s, std::nullopt, std::nullopt, false},
                 Record{INT_MIN, u"1"_s, u""_s, NSDate{-63114076800}, true},
                 Record{INT_MAX, u"$null"_s, u"true"_s, NSDate{0}, false},
                 Record{-1, u"$class<&>\n\t\x1f"_s, u"$null"_s, NSDate{1}, true},
                 Record{70000, QString(100000, u'ä'), QString(20, u'a'), NSDate{1e9 + 1e-3}},
             })
            QCOMPARE(unarchived(archived(record).value()), record);
        QVERIFY(!archived({1, u"a\0b"_s, {}, {}, false}));
        QVERIFY(!archived({1, u"a"_s, QString(QChar(0xdc00)), {}, false}));
    }

    /// The layout that other readers of the format count on.
    void layout()
    {
        const auto data = archived({7, u"same"_s, u"same"_s, NSDate{0.5}, true});
        QVERIFY(data && data->startsWith("bplist00"));
        const auto list = PropertyList::fromData(*data);
        QVERIFY(list);
        QCOMPARE(list->items().size(), 4);
        QCOMPARE(list->item(u"$version"_s).integer(), 100000);
        QCOMPARE(list->item(u"$archiver"_s).string(), u"NSKeyedArchiver"_s);
        const QList<PropertyListNode> objects = list->item(u"$objects"_s).elements();
        QCOMPARE(objects.at(0).string(), u"$null"_s);
        const auto object = [&](const PropertyListNode &node) {
            return objects.value(qsizetype(node.uid().value_or(99)));
        };
        const PropertyListNode root = object(list->item(u"$top"_s).item(u"root"_s));
        QCOMPARE(root.item(u"flag"_s).boolean(), true);
        QCOMPARE(object(root.item(u"number"_s)).integer(), 7);
        QCOMPARE(object(root.item(u"name"_s)).string(), u"same"_s);
        QCOMPARE(root.item(u"alias"_s).uid(), root.item(u"name"_s).uid());
        const PropertyListNode date = object(root.item(u"date"_s));
        QCOMPARE(date.item(u"NS.time"_s).real(), 0.5);
        const std::pair<PropertyListNode, QString> classes[] = {{root, recordClass},
                                                                {date, u"NSDate"_s}};
        for (const auto &[node, name] : classes) {
            const PropertyListNode description = object(node.item(u"$class"_s));
            QCOMPARE(description.item(u"$classname"_s).string(), name);
            const QList<PropertyListNode> names = description.item(u"$classes"_s).elements();
            QCOMPARE(names.size(), 2);
            QCOMPARE(names[0].string(), name);
            QCOMPARE(names[1].string(), u"NSObject"_s);
        }
    }

    void readsWhatOthersWrite()
    {
        const auto coder = NSKeyedUnarchiver::unarchiveObjectWithData(foreignArchive, recordClass);
        QVERIFY(coder);
        QCOMPARE(coder->decodeStringForKey(u"mail"_s), u"jo@wzt.example"_s);
        QVERIFY(coder->containsValueForKey(u"none"_s));
        QVERIFY(!coder->decodeStringForKey(u"none"_s) && !coder->containsValueForKey(u"other"_s));
        const Record expected{42, u"Jürgen"_s, u"Jürgen"_s, NSDate{587487909.5}, true};
        QCOMPARE(unarchived(foreignArchive), expected);
        QVERIFY(!NSKeyedUnarchiver::unarchiveObjectWithData(foreignArchive, u"NSDate"_s));
    }

    void readsValues()
    {
        const QString no = u"nil"_s;
        const Record nothing{0, no, {}, {}, false};
        const Record flagged{0, no, {}, {}, true};
        const QByteArray url = objectOf("NSURL", "<k>NS.string</k><s>x</s>");
        const QByteArray bytes = objectOf("NSString", "<k>NS.bytes</k><data>w6Q=</data>");
        const std::tuple<const char *, const char *, QByteArray, Record> rows[] = {
            {"other", "<true/>", "", nothing},
            {"number", "@3", "<s> 12abc</s>", {12, no, {}, {}}},
            {"number", "@3", "<r>-2.9</r>", {-2, no, {}, {}}},
            {"number", "@3", "<i>4294967297</i>", {INT_MAX, no, {}, {}}},
            {"number", "<i>-5</i>", "", {-5, no, {}, {}}},
            {"number", "@3", objectOf("NSNumber", "<k>NS.intval</k><i>8</i>"), {8, no, {}, {}}},
            {"name", "@3", "<i>17</i>", {0, u"17"_s, {}, {}}},
            {"name", "@3", "<true/>", nothing},
            {"name", "@3", "<array/>", nothing},
            {"name", "<s>Jo</s>", "", {0, u"Jo"_s, {}, {}}},
            {"name", "@3", bytes, {0, u"ä"_s, {}, {}}},
            {"name", "@3", objectOf("NSNull", ""), nothing},
            {"name", "@3", url, nothing},
            {"name", "@1", "", nothing}, // itself
            {"name", "@3", "@4<s>x</s>", nothing}, // a reference to a reference
            {"date", "<date>2001-01-01T00:00:10Z</date>", "", {0, no, {}, NSDate{10}}},
            {"date", "@3", "<date>2001-01-01T00:01:00Z</date>", {0, no, {}, NSDate{60}}},
            {"date", "@3", objectOf("NSDate", "<k>NS.time</k><i>-3</i>"), {0, no, {}, NSDate{-3}}},
            {"date", "@3", objectOf("NSDate", ""), nothing},
            {"flag", "@3", "<true/>", flagged},
            {"flag", "<i>2</i>", "", flagged},
        };
        for (const auto &[key, value, more, record] : rows)
            QVERIFY2(unarchived(archiveOf(key, value, more)) == record, more.constData());
        const QByteArray derived =
            "<dict><k>$class</k>@2</dict><dict><k>$classname</k><s>Derived</s>"
            "<k>$classes</k><array><s>Derived</s><s>Record</s></array></dict>";
        QCOMPARE(unarchived(xmlArchive(derived)), nothing);
    }

    void refuses_data()
    {
        const QByteArray root = "<dict><k>$class</k>@2</dict>" + recordDescription;
        const QByteArray version = "<k>$version</k><i>100000</i>";
        const QByteArray archiver = "<k>$archiver</k><s>Keyed</s>";
        QVERIFY(unarchived(xmlArchive(root)));
        QByteArrayList chain;
        QByteArrayList bomb; // each list holds the next one ten times
        for (int i = 1; i <= 1000; ++i) {
            chain.append("\xa1" + reference(i));
            bomb.append("\xaa" + reference(std::min(i, 9)).repeated(10));
        }
        addCases<Refusal>({
            {"nothing", ""},
            {"text", "hello"},
            {"a list", "<plist version=\"1.0\"><array/></plist>"},
            {"no version", xmlArchive(root, "@1", archiver)},
            {"text as version", xmlArchive(root, "@1", archiver + "<k>$version</k><s>100000</s>")},
            {"another version", xmlArchive(root, "@1", archiver + "<k>$version</k><i>1</i>")},
            {"no archiver", xmlArchive(root, "@1", version)},
            {"number as archiver", xmlArchive(root, "@1", version + "<k>$archiver</k><i>1</i>")},
            {"nil root", xmlArchive(root, "@0")},
            {"root in place", xmlArchive(root, "<s>x</s>")},
            {"root out of range", xmlArchive(root, "@9")},
            {"root below range", xmlArchive(root, "<dict><k>CF$UID</k><i>-1</i></dict>")},
            {"root of another type", xmlArchive("<s>x</s>")},
            {"class out of range", xmlArchive("<dict><k>$class</k>@7</dict>")},
            {"class is itself", xmlArchive("<dict><k>$class</k>@1</dict>")},
            {"class as text", xmlArchive("<dict><k>$class</k><s>Record</s></dict>")},
            {"value out of range", archiveOf("name", "@8")},
            {"nested too deep",
             "<plist version=\"1.0\">" + QByteArray("<array>").repeated(100000)
                 + QByteArray("</array>").repeated(100000) + "</plist>"},
            {"unclosed", "<plist version=\"1.0\">" + QByteArray("<array>").repeated(100000)},
            {"huge count of objects", binary({"\x09"}, ~0ULL)},
            {"huge count of items",
             binary({QByteArray("\xaf\x13\xff\xff\xff\xff\xff\xff\xff\xff")}, 1)},
            {"huge length of text",
             binary({QByteArray("\x5f\x13\x7f\xff\xff\xff\xff\xff\xff\xff")}, 1)},
            {"null character in a key",
             binary({"\xd1" + reference(1) + reference(2), QByteArray("\x62\0a\0\0", 5), "\x09"},
                    3)},
            {"contains itself", binary({"\xa1" + reference(0)}, 1)},
            {"refers to nothing", binary({"\xa1" + reference(7)}, 1)},
            {"a long chain", binary(chain << "\x09", 1001)},
            {"a bomb of references", binary(bomb.mid(0, 9) << "\x09", 10)},
        });
    }

    void refuses()
    {
        QElapsedTimer time;
        time.start();
        QVERIFY(!unarchived(std::get<1>(currentCase<Refusal>())));
        QVERIFY(time.elapsed() < 2000);
    }

    /// Whatever happens to the bytes of an archive, it is read as something or refused.
    void damagedAtEveryByte()
    {
        const QByteArray xml = archiveOf("date", "<date>2001-01-01T00:00:10Z</date>");
        for (const QByteArray &whole : {foreignArchive, xml}) {
            for (qsizetype length = 0; length < whole.trimmed().size(); ++length) {
                QVERIFY(!unarchived(whole.left(length)));
            }
            for (qsizetype place = 0; place < whole.size(); ++place) {
                for (const int byte :
                     {0x00, 0x7f, 0xff, whole[place] ^ 0x01, whole[place] ^ 0x10}) {
                    QByteArray damaged = whole;
                    damaged[place] = char(byte);
                    (void)unarchived(damaged);
                }
            }
        }
    }
};

WZT_TEST(KeyedArchiveTest)
#include "KeyedArchiveTest.moc"
