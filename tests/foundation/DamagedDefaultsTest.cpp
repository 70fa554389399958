// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/FullDisk.h"
#include "tests/foundation/DefaultsFixture.h"

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype tooLong = qsizetype{64} * 1024;

using Damage = std::tuple<const char *, QByteArray>;

} // namespace

/// Damaged files, full disks, other processes and killed writers.
class DamagedDefaultsTest : public DefaultsFixture {
    Q_OBJECT

    /// Writes large values, each of one repeated byte, until the process is killed.
    [[noreturn]] void writeForever() const
    {
        NSUserDefaults target = defaults();
        for (char byte = 0; target.setObject(QByteArray(50000, byte), userKey); ++byte) {}
        _exit(1);
    }

private Q_SLOTS:
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

    /// In two rounds: a read, then a write finds the damage.
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
                Files::write(m_file, content);
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
                        || Files::content(kept) == content);
            }
        }
        // Files that were moved aside may contain the value.
        QVERIFY(defaults().removeObjectForKey(userKey));
        QCOMPARE(entries().size(), content == "full folder" ? 2 : 0);
    }

    void failsWithoutHarm()
    {
        Files::write(m_folder, "in the way");
        QVERIFY(!defaults().setObject(QByteArray("a"), userKey));
        QVERIFY(!defaults().dataForKey(userKey));
        QCOMPARE(Files::content(m_folder), QByteArray("in the way"));
        QVERIFY(QFile::remove(m_folder));

        QVERIFY(defaults().setObject(QByteArray("a"), userKey));
        QVERIFY(!defaults().setObject(QByteArray(tooLong, 'x'), userKey));
        const FileDescriptor other(open(QFile::encodeName(m_folder).constData(), O_RDONLY));
        QCOMPARE(flock(other.get(), LOCK_EX), 0); // for ever
        QVERIFY(!defaults().setObject(QByteArray("b"), userKey));
        QVERIFY(defaults().removeObjectForKey(u"unknown"_s));
        QCOMPARE(defaults().dataForKey(userKey), QByteArray("a"));
        Files::write(m_file + u".tmp"_s, "of a writer that stands still");
        QVERIFY(defaults().removeObjectForKey(userKey));
        QCOMPARE(entries(), QStringList());
        Files::write(m_file + u".tmp"_s, "of a writer that was killed in its first write");
        QVERIFY(defaults().removeObjectForKey(userKey));
        QCOMPARE(entries(), QStringList());
    }

    /// It loses the other keys, which cannot be written.
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
                writeForever();
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

WZT_TEST(DamagedDefaultsTest)
#include "DamagedDefaultsTest.moc"
