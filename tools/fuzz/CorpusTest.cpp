// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "tools/fuzz/FuzzTargets.h"

#include <QDir>
#include <QFile>

/// Seeds of the fuzzer, and every input that once broke a rule, through their readers.
class CorpusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyInputIsRead_data()
    {
        QTest::addColumn<const FuzzTarget *>("target");
        QTest::addColumn<QString>("path");
        const QDir corpus(QStringLiteral(WZT_CORPUS));
        for (const FuzzTarget &target : fuzzTargets()) {
            const QDir folder(corpus.filePath(target.name));
            const QStringList names = folder.entryList(QDir::Files);
            QVERIFY2(!names.isEmpty(), target.name.data());
            for (const QString &name : names) {
                QTest::addRow("%s/%s", target.name.data(), qPrintable(name))
                    << &target << folder.filePath(name);
            }
        }
    }

    void everyInputIsRead()
    {
        QFETCH(const FuzzTarget *, target);
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QFile::ReadOnly));
        target->read(file.readAll());
    }
};

WZT_TEST(CorpusTest)
#include "CorpusTest.moc"
