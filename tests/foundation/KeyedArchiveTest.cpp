// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/foundation/coding/NSKeyedArchiver.h"
#include "platform/foundation/coding/NSKeyedUnarchiver.h"
#include "platform/foundation/coding/PropertyList.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

using Values = QMap<QString, NSCoder::Value>;
using Reading = std::tuple<const char *, QByteArray, QString>;
using Refusal = std::tuple<const char *, QByteArray>;

const QString recordClass = u"Record"_s;

std::optional<QByteArray> archived(const Values &values)
{
    NSCoder coder;
    for (auto value = values.begin(); value != values.end(); ++value) {
        coder.encodeValue(*value, value.key());
    }
    return NSKeyedArchiver::archivedDataWithCoder(coder, recordClass);
}

std::optional<NSCoder> unarchived(const QByteArray &data)
{
    return NSKeyedUnarchiver::unarchiveObjectWithData(data, recordClass);
}

/// An archive in XML with these objects. Abbreviations: `@n` is the UID n; i, r, s and k are
/// integer, real, string and key.
QByteArray xmlArchive(const QByteArray &objects, const QByteArray &root = "@1")
{
    QString text = QString::fromUtf8(
        "<plist version=\"1.0\"><dict><k>$version</k><i>100000</i><k>$archiver</k><s>Keyed</s>"
        "<k>$top</k><dict><k>root</k>"
        + root + "</dict><k>$objects</k><array><s>$null</s>" + objects + "</array></dict></plist>");
    const std::pair<QString, QString> replacements[] = {
        {u"@(.)"_s, u"<dict><k>CF$UID</k><i>\\1</i></dict>"_s},
        {u"<(/?)i>"_s, u"<\\1integer>"_s},
        {u"<(/?)r>"_s, u"<\\1real>"_s},
        {u"<(/?)s>"_s, u"<\\1string>"_s},
        {u"<(/?)k>"_s, u"<\\1key>"_s}};
    for (const auto &[before, after] : replacements) {
        text.replace(QRegularExpression(before), after);
    }
    return text.toUtf8();
}

const QByteArray recordDescription = "<dict><k>$classname</k><s>Record</s></dict>";

/// Archives as bytes, so that errors in reading and writing cannot cancel out. Another program
/// wrote the first, and has read the second.
constexpr char foreignArchive[] =
    "62706c6973743030d401020304050614175924617263686976657258246f626a656374735424746f"
    "70582476657273696f6e5f100f4e534b657965644172636869766572a407080d0e55246e756c6cd2"
    "090a0b0c5624636c6173735576616c75658003800266004a00fc007200670065006ed20f10111258"
    "24636c61737365735a24636c6173736e616d65a21213565265636f7264584e534f626a656374d115"
    "1654726f6f74800112000186a008111b24293244494f545b6163657277808b8e959ea1a6a8000000"
    "00000001010000000000000018000000000000000000000000000000ad";
constexpr char ownArchive[] =
    "62706c6973743030d4010203040506070a582476657273696f6e592461726368697665725424746f"
    "7058246f626a6563747312000186a05f100f4e534b657965644172636869766572d1080954726f6f"
    "748001a70b0c18191d232455246e756c6cd60d0e0f10111213141513161755616c69617354646174"
    "6554666c6167546e616d65566e756d6265725624636c6173738002800309800580065473616d65d2"
    "1a121b1c574e532e74696d65233fe00000000000008004d21e1f20215a24636c6173736e616d6558"
    "24636c6173736573564e5344617465a22022584e534f626a65637413fffffffffffffff9d21e1f25"
    "26565265636f7264a2252208111a24293237494c51535b616e74797e838a91939596989a9fa4acb5"
    "b7bcc7d0d7dae3ecf1f8000000000000010100000000000000270000000000000000000000000000"
    "00fb";

/// A record with one value. `more`: the objects from @3 on.
QByteArray archiveOf(const QByteArray &value, const QByteArray &more = {})
{
    return xmlArchive("<dict><k>$class</k>@2<k>value</k>" + value + "</dict>" + recordDescription
                      + more);
}

/// A record whose value is an object of that class.
QByteArray archiveOfObject(const QByteArray &className, const QByteArray &values)
{
    return archiveOf("@3",
                     "<dict><k>$class</k>@4" + values + "</dict><dict><k>$classname</k><s>"
                         + className + "</s></dict>");
}

} // namespace

class KeyedArchiveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        for (const NSCoder::Value &value : std::initializer_list<NSCoder::Value>{
                 std::monostate(), true, false, qint64{17}, static_cast<qint64>(INT_MIN), 2.5,
                 u""_s, u"$null"_s, u"Jürgen 😀 $class<&>\n\t\x1f"_s, QString(20000, u'ä'),
                 NSDate{587487909.25}, NSDate{-63114076800}, NSDate{1e9 + 1e-3},
                 u"\ufeffjo@wzt.example"_s, u"\ufeffä"_s, u"a\0b"_s}) {
            const Values values{{u"a"_s, value}, {u"b"_s, u"1"_s}, {u"\ufeffc"_s, value}};
            const auto coder = unarchived(archived(values).value());
            QVERIFY(coder && coder->values() == values);
        }
        QVERIFY(!archived({{u"a"_s, QString(QChar(0xdc00))}}));
    }

    /// The layout on which other readers of the format depend.
    void layout()
    {
        const auto data = archived({{u"number"_s, qint64{-7}},
                                    {u"name"_s, u"same"_s},
                                    {u"alias"_s, u"same"_s},
                                    {u"date"_s, NSDate{0.5}},
                                    {u"flag"_s, true}});
        QVERIFY(data);
        QCOMPARE(data->toHex(), ownArchive);
    }

    void readsForeignArchives_data()
    {
        const QString nothing = u"0 nil 0 nil"_s;
        const QByteArray text = "<k>NS.string</k><s>x</s>";
        const QByteArray bytes = "<k>NS.bytes</k><data>w6Q=</data>";
        addCases<Reading>({
            // The value as an integer, as seconds of a date, as a boolean and as a text.
            {"text", archiveOf("@3", "<s> 12abc</s>"), u"12 nil 0  12abc"_s},
            {"mutable text", archiveOfObject("NSMutableString", text), u"0 nil 0 x"_s},
            {"text as bytes", archiveOfObject("NSString", bytes), u"0 nil 0 ä"_s},
            {"byte order mark as bytes",
             archiveOfObject("NSString", "<k>NS.bytes</k><data>77u/YQ==</data>"),
             u"0 nil 0 \ufeffa"_s},
            {"real", archiveOf("@3", "<r>-2.9</r>"), u"-2 nil 1 -2.9"_s},
            {"beyond int", archiveOf("@3", "<i>4294967297</i>"), u"2147483647 nil 1 4294967297"_s},
            {"in place", archiveOf("<i>-5</i>"), u"-5 nil 1 -5"_s},
            {"number", archiveOfObject("NSNumber", "<k>NS.intval</k><i>8</i>"), u"8 nil 1 8"_s},
            {"boolean", archiveOf("<true/>"), u"1 nil 1 nil"_s},
            {"date", archiveOfObject("NSDate", "<k>NS.time</k><i>-3</i>"), u"0 -3 0 nil"_s},
            {"plain date", archiveOf("<date>2001-01-01T00:00:10Z</date>"), u"0 10 0 nil"_s},
            {"plain date of 1900", archiveOf("<date>1900-01-01T00:00:00Z</date>"),
             u"0 -3187296000 0 nil"_s},
            {"plain date of 2100", archiveOf("<date>2100-01-01T00:00:00Z</date>"),
             u"0 3124137600 0 nil"_s},
            {"date without time", archiveOfObject("NSDate", ""), nothing},
            {"list", archiveOf("@3", "<array/>"), nothing},
            {"null", archiveOfObject("NSNull", ""), nothing},
            {"other class", archiveOfObject("NSURL", text), nothing},
            {"itself", archiveOf("@1"), nothing},
            {"in the binary form", QByteArray::fromHex(foreignArchive), u"0 nil 0 Jürgen"_s},
            {"reference to a reference", archiveOf("@3", "@4<s>x</s>"), nothing},
            {"derived class",
             xmlArchive("<dict><k>$class</k>@2</dict><dict><k>$classname</k><s>Derived</s>"
                        "<k>$classes</k><array><s>Derived</s><s>Record</s></array></dict>"),
             nothing},
        });
    }

    void readsForeignArchives()
    {
        const auto &[name, archive, expected] = currentCase<Reading>();
        const auto coder = unarchived(archive);
        QVERIFY(coder);
        const QString key = u"value"_s;
        const auto date = coder->decodeDateForKey(key);
        QCOMPARE(
            QString::number(coder->decodeIntForKey(key)) + u' '
                + (date ? QString::number(date->timeIntervalSinceReferenceDate, 'g', 12) : u"nil"_s)
                + (coder->decodeBoolForKey(key) ? u" 1 "_s : u" 0 "_s)
                + coder->decodeStringForKey(key).value_or(u"nil"_s),
            expected);
    }

    void refuses_data()
    {
        const QByteArray good = xmlArchive("<dict><k>$class</k>@2</dict>" + recordDescription);
        QVERIFY(unarchived(good));
        const auto with = [good](const char *before, const QByteArray &after) {
            return QByteArray(good).replace(before, after);
        };
        addCases<Refusal>({
            {"text", "hello"},
            {"another class", with(">Record<", ">Other<")},
            {"a list", "<plist version=\"1.0\"><array/></plist>"},
            {"no version", with("$version", "version")},
            {"text as version", with("<integer>100000</integer>", "<string>100000</string>")},
            {"another version", with("100000", "1")},
            {"no archiver", with("$archiver", "archiver")},
            {"nil root", xmlArchive("", "@0")},
            {"root in place", xmlArchive("", "<s>x</s>")},
            {"root out of range", xmlArchive("", "@9")},
            {"root below range", xmlArchive("", "<dict><k>CF$UID</k><i>-1</i></dict>")},
            {"root of another type", xmlArchive("<s>x</s>")},
            {"class out of range", xmlArchive("<dict><k>$class</k>@7</dict>")},
            {"class is itself", xmlArchive("<dict><k>$class</k>@1</dict>")},
            {"class as text", xmlArchive("<dict><k>$class</k><s>Record</s></dict>")},
            {"value out of range", archiveOf("@8")},
        });
    }

    void refuses() { QVERIFY(!unarchived(std::get<1>(currentCase<Refusal>()))); }

    /// A damaged archive never crashes the reader.
    void damagedAtEveryByte()
    {
        const QByteArray xml = archiveOf("<date>2001-01-01T00:00:10Z</date>");
        const QByteArray plain = *archived({{u"name"_s, u"Jürgen"_s}, {u"date"_s, NSDate{0.5}}});
        for (const QByteArray &whole : {plain, xml}) {
            for (qsizetype place = 0; place < whole.size(); ++place) {
                QVERIFY(!unarchived(whole.left(place)));
                for (const int byte :
                     {0x00, 0x7f, 0xff, whole[place] ^ 0x01, whole[place] ^ 0x10}) {
                    QByteArray damaged = whole;
                    damaged[place] = static_cast<char>(byte);
                    (void)unarchived(damaged);
                }
            }
        }
    }
};

WZT_TEST(KeyedArchiveTest)
#include "KeyedArchiveTest.moc"
