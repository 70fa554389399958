// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/FullDisk.h"
#include "harness/TestRunner.h"
#include "platform/foundation/coding/PropertyList.h"
#include "platform/foundation/storage/NSUserDefaults.h"
#include "tests/foundation/BinaryList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString id = u"example.wzt.Test"_s;
const QString userKey = u"currentUser"_s;
constexpr qsizetype tooLong = qsizetype{64} * 1024;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

uint modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Writes large values, each of one repeated byte, until it is killed.
[[noreturn]] void writeForEver(NSUserDefaults defaults)
{
    for (char byte = 0; defaults.setObject(QByteArray(50000, byte), userKey); ++byte) {}
    _exit(1);
}

using Damage = std::tuple<const char *, QByteArray>;

} // namespace

class UserDefaultsTest : public QObject {
    Q_OBJECT

private:
    std::optional<QTemporaryDir> m_home;
    QString m_folder;
    QString m_file;

    [[nodiscard]] NSUserDefaults defaults() const { return NSUserDefaults(id, m_home->path()); }
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_folder).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_folder = m_home->filePath(id);
        m_file = m_folder + u'/' + id + u".plist"_s;
    }

    void keepsData()
    {
        QVERIFY(!defaults().dataForKey(userKey) && !QFile::exists(m_folder));
        const QByteArray bytes("\0a\xff", 3);
        QVERIFY(defaults().setObject(bytes, userKey));
        QVERIFY(defaults().setObject(QByteArray(), u"empty"_s));
        QCOMPARE(defaults().dataForKey(userKey), bytes);
        QCOMPARE(defaults().dataForKey(u"empty"_s), QByteArray());
        QVERIFY(contentOf(m_file).startsWith("bplist00"));

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
        // A folder that a link leads to is somebody else's to open or close.
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

    void keepsWhatItDoesNotKnow()
    {
        const QByteArray list =
            "<plist version=\"1.0\"><dict><key>i</key><integer>-5</integer>"
            "<key>big</key><integer>18446744073709551615</integer><key>r</key><real>1.5</real>"
            "<key>s</key><string>ä😀</string><key>t</key><true/>"
            "<key>d</key><date>4001-01-01T00:00:00Z</date><key>currentUser</key><integer>3</"
            "integer>"
            "<key>l</key><array><dict><key>k</key><data>AAE=</data></dict></array></dict></plist>";
        QDir().mkpath(m_folder);
        writeFile(m_file, list);
        QVERIFY(!defaults().dataForKey(userKey));
        QVERIFY(defaults().setObject(QByteArray("a"), userKey));
        const auto expected = PropertyList::fromData(
            QByteArray(list).replace("<integer>3</integer>", "<data>YQ==</data>"));
        QCOMPARE(contentOf(m_file), expected->toData());
    }

    /// Values and keys without a meaning here, and the own key twice.
    void keepsBytes()
    {
        using namespace BinaryList;
        const QByteArrayList keys{"\x51"
                                  "a",
                                  "\x52\xff\xc3", "\x52ä", "\x61\xdc" + QByteArray(1, '\0'),
                                  QByteArray("\x53x\0y", 4)};
        const QByteArrayList values{QByteArray(1, '\0'), "\x22\x3f\xc0\0\1"_ba,
                                    "\x14" + number(1, 8) + number(2, 8),
                                    "\x82"
                                    "abc",
                                    QByteArray("\x53p\0q", 4)};
        QByteArray top = "\xd7";
        for (int i = 1; i <= 7; ++i) {
            top += reference(i);
        }
        for (int i = 8; i <= 14; ++i) {
            top += reference(i);
        }
        const QByteArray list = of(QByteArrayList{top,
                                                  "\x5b"
                                                  "currentUser"}
                                   + keys
                                   + QByteArrayList{"\x5b"
                                                    "currentUser",
                                                    "\x41"
                                                    "1"}
                                   + values
                                   + QByteArrayList{"\x41"
                                                    "2"});
        for (const bool removes : {false, true}) {
            QDir().mkpath(m_folder);
            writeFile(m_file, list);
            QCOMPARE(defaults().dataForKey(userKey), "1");
            QVERIFY(removes ? defaults().removeObjectForKey(userKey)
                            : defaults().setObject(QByteArray("3"), userKey));
            const QByteArray written = contentOf(m_file);
            for (const QByteArray &object : keys + values) {
                QVERIFY2(written.contains(object), object.toHex().constData());
            }
            QCOMPARE(written.count("currentUser"), removes ? 0 : 1);
            QCOMPARE(defaults().dataForKey(userKey).has_value(), !removes);
            QVERIFY(!written.contains("\x41"
                                      "1")
                    && !written.contains("\x41"
                                         "2"));
            QCOMPARE(entries(), QStringList{id + u".plist"_s});
        }
    }

    void damagedFile_data()
    {
        addCases<Damage>({
            {"empty", ""},
            {"zeros", QByteArray(4096, '\0')},
            {"cut", "bplist00\xd1\1"},
            {"a list", "<plist version=\"1.0\"><array/></plist>"},
            {"a folder", "folder"},
            {"a pipe", "pipe"},
            {"too long",
             "<plist version=\"1.0\"><dict>" + QByteArray(tooLong, ' ') + "</dict></plist>"},
            {"a folder that is not empty", "full folder"},
        });
    }

    /// Twice, first found by reading, then by writing.
    void damagedFile()
    {
        const auto &[name, content] = currentCase<Damage>();
        const QByteArray path = QFile::encodeName(m_file);
        for (int round = 1; round <= 2; ++round) {
            QDir().mkpath(m_folder);
            QFile::remove(m_file);
            if (content.endsWith("folder")) {
                QCOMPARE(mkdir(path.constData(), 0700), 0);
                QVERIFY(content == "folder" || QDir(m_file).mkdir(u"inner"_s));
            } else if (content == "pipe") {
                QCOMPARE(mkfifo(path.constData(), 0600), 0);
            } else {
                writeFile(m_file, content);
            }
            QVERIFY(round == 2 || !defaults().dataForKey(userKey));
            QVERIFY(defaults().setObject(QByteArray("a"), userKey));
            QCOMPARE(defaults().dataForKey(userKey), QByteArray("a"));
            const QStringList aside =
                QDir(m_folder).entryList({id + u".plist.damaged-*"_s}, QDir::Dirs);
            QCOMPARE(aside.size(), round);
            for (const QString &folder : aside) {
                const QString kept = m_folder + u'/' + folder + u'/' + id + u".plist"_s;
                QVERIFY(modeOf(m_folder + u'/' + folder) == 0700U && modeOf(kept) != 0);
                QVERIFY(content.endsWith("folder") || content == "pipe"
                        || contentOf(kept) == content);
            }
        }
        // What was moved aside may hold the value.
        QVERIFY(defaults().removeObjectForKey(userKey));
        QCOMPARE(entries().size(), content == "full folder" ? 2 : 0);
    }

    void failsWithoutHarm()
    {
        writeFile(m_folder, "in the way");
        QVERIFY(!defaults().setObject(QByteArray("a"), userKey));
        QVERIFY(!defaults().dataForKey(userKey));
        QCOMPARE(contentOf(m_folder), QByteArray("in the way"));
        QVERIFY(QFile::remove(m_folder));

        QVERIFY(defaults().setObject(QByteArray("a"), userKey));
        QVERIFY(!defaults().setObject(QByteArray(tooLong, 'x'), userKey));
        const FileDescriptor other(open(QFile::encodeName(m_folder).constData(), O_RDONLY));
        QCOMPARE(flock(other.get(), LOCK_EX), 0); // for ever
        QVERIFY(!defaults().setObject(QByteArray("b"), userKey));
        QVERIFY(defaults().removeObjectForKey(u"unknown"_s));
        QCOMPARE(defaults().dataForKey(userKey), QByteArray("a"));
        writeFile(m_file + u".tmp"_s, "of a writer that stands still");
        QVERIFY(defaults().removeObjectForKey(userKey));
        QCOMPARE(entries(), QStringList());
    }

    /// At the price of the other keys, which are kept wherever they can be written.
    void removalHoldsOnAFullDisk()
    {
        QVERIFY(defaults().setObject(QByteArray("kept"), u"other"_s));
        QVERIFY(defaults().setObject(QByteArray("a"), userKey));
        const FullDisk disk;
        QVERIFY(!defaults().setObject(QByteArray("b"), userKey));
        QVERIFY(defaults().setObject(std::nullopt, u"unknown"_s));
        QCOMPARE(defaults().dataForKey(userKey), QByteArray("a"));
        QVERIFY(defaults().setObject(std::nullopt, userKey));
        QCOMPARE(entries(), QStringList());
    }

    void killedWriterTearsNothing()
    {
        QVERIFY(defaults().setObject(QByteArray("kept"), u"other"_s));
        QVERIFY(defaults().setObject(QByteArray(50000, 'x'), userKey));
        for (int kill = 0; kill < 40; ++kill) {
            const pid_t writer = fork();
            if (writer == 0) {
                writeForEver(defaults());
            }
            usleep(useconds_t(500 + 397 * kill));
            ::kill(writer, SIGKILL);
            int status = 0;
            QCOMPARE(waitpid(writer, &status, 0), writer);
            QVERIFY(WIFSIGNALED(status));
            const QByteArray value = defaults().dataForKey(userKey).value_or(QByteArray());
            QVERIFY(!value.isEmpty());
            QCOMPARE(value, QByteArray(50000, value.at(0)));
            QCOMPARE(defaults().dataForKey(u"other"_s), QByteArray("kept"));
            QCOMPARE(modeOf(m_file), 0600U);
        }
        QVERIFY(defaults().setObject(QByteArray("end"), userKey));
        QCOMPARE(entries(), QStringList{id + u".plist"_s});
    }
};

WZT_TEST(UserDefaultsTest)
#include "UserDefaultsTest.moc"
