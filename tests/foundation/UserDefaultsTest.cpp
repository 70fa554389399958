// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/PropertyList.h"
#include "tests/foundation/BinaryList.h"
#include "tests/foundation/DefaultsFixture.h"

using namespace Qt::StringLiterals;

/// The values of an intact file.
class UserDefaultsTest : public DefaultsFixture {
    Q_OBJECT

private Q_SLOTS:
    void keepsData()
    {
        QVERIFY(!defaults().dataForKey(userKey) && !QFile::exists(m_folder));
        const QByteArray bytes("\0a\xff", 3);
        QVERIFY(defaults().setObject(bytes, userKey));
        QVERIFY(defaults().setObject(QByteArray(), u"empty"_s));
        QCOMPARE(defaults().dataForKey(userKey), bytes);
        QCOMPARE(defaults().dataForKey(u"empty"_s), QByteArray());
        QVERIFY(Files::content(m_file).startsWith("bplist00"));

        QVERIFY(defaults().removeObjectForKey(userKey));
        QVERIFY(!defaults().dataForKey(userKey) && defaults().dataForKey(u"empty"_s));
        QCOMPARE(entries(), QStringList{id + u".plist"_s});
        QVERIFY(defaults().removeObjectForKey(u"empty"_s));
        QCOMPARE(entries(), QStringList());
    }

    void isForTheUserAlone()
    {
        const mode_t before = umask(0);
        for (const mode_t mask : {0U, 0277U}) {
            umask(mask);
            QVERIFY(defaults().setObject(QByteArray("a"), userKey));
            QCOMPARE(modeOf(m_folder), 0700U);
            QCOMPARE(modeOf(m_file), 0600U);
            chmod(QFile::encodeName(m_folder).constData(), 0777);
            chmod(QFile::encodeName(m_file).constData(), 0666);
        }
        umask(before);
        // The target of a linked folder keeps its mode.
        QVERIFY(QFile::rename(m_folder, m_folder + u".away"_s)
                && QFile::link(m_folder + u".away"_s, m_folder));
        QVERIFY(defaults().setObject(QByteArray("b"), userKey));
        QCOMPARE(modeOf(m_folder), 0777U);
        QCOMPARE(modeOf(m_file), 0600U);
    }

    void defaultFolderIsTheConfigurationFolder()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->path()));
        const bool stored = NSUserDefaults(id).setObject(QByteArray("x"), userKey);
        qunsetenv("XDG_CONFIG_HOME");
        QVERIFY(stored && QFile::exists(m_file));
    }

    void keepsUnknownValues()
    {
        const QByteArray list =
            "<plist version=\"1.0\"><dict><key>i</key><integer>-5</integer>"
            "<key>big</key><integer>18446744073709551615</integer><key>r</key><real>1.5</real>"
            "<key>s</key><string>ä😀</string><key>t</key><true/>"
            "<key>d</key><date>4001-01-01T00:00:00Z</date><key>currentUser</key><integer>3</"
            "integer>"
            "<key>l</key><array><dict><key>k</key><data>AAE=</data></dict></array></dict></plist>";
        Files::write(m_file, list);
        QVERIFY(!defaults().dataForKey(userKey));
        QVERIFY(defaults().setObject(QByteArray("a"), userKey));
        const auto expected = PropertyList::fromData(
            QByteArray(list).replace("<integer>3</integer>", "<data>YQ==</data>"));
        QCOMPARE(Files::content(m_file), expected->toData());
    }

    /// Values and keys of types that have no accessor, and the own key twice.
    void keepsBytes()
    {
        using namespace BinaryList;
        const QByteArrayList keys{ascii("a"), ascii("\xff\xc3"), ascii("ä"),
                                  "\x61\xdc" + QByteArray(1, '\0'), ascii("x\0y"_ba)};
        const QByteArrayList values{QByteArray(1, '\0'), "\x22\x3f\xc0\0\1"_ba,
                                    "\x14" + number(1, 8) + number(2, 8), "\x82" + "abc"_ba,
                                    ascii("p\0q"_ba)};
        QByteArray top = "\xd7";
        for (int i = 1; i <= 14; ++i) {
            top += reference(i);
        }
        const QByteArray own = ascii("currentUser");
        const QByteArray list = of(QByteArrayList{top, own} + keys + QByteArrayList{own, data("1")}
                                   + values + QByteArrayList{data("2")});
        for (const bool removes : {false, true}) {
            Files::write(m_file, list);
            QCOMPARE(defaults().dataForKey(userKey), "1");
            QVERIFY(removes ? defaults().removeObjectForKey(userKey)
                            : defaults().setObject(QByteArray("3"), userKey));
            const QByteArray written = Files::content(m_file);
            for (const QByteArray &object : keys + values) {
                QVERIFY2(written.contains(object), object.toHex().constData());
            }
            QCOMPARE(written.count("currentUser"), removes ? 0 : 1);
            QCOMPARE(defaults().dataForKey(userKey).has_value(), !removes);
            QVERIFY(!written.contains(data("1")) && !written.contains(data("2")));
            QCOMPARE(entries(), QStringList{id + u".plist"_s});
        }
    }
};

WZT_TEST(UserDefaultsTest)
#include "UserDefaultsTest.moc"
