// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "service/TavloCategoryExtension.h"

using namespace Qt::StringLiterals;

class DigestTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passwordsBecomeDigests()
    {
        const std::pair<QString, QByteArray> rows[] = {
            {u""_s, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
            {u"ü"_s, "607474ca475a9724d7360aba71a56d5df77e61350e3f724cfa1f46e857e2d85f"},
            {u"a\0b"_s, "ca978112ca1bbdcafac231b39a23dc4da786eff8147c4e72b9807785afee48bb"},
        };
        for (const auto &[text, digest] : rows) {
            QCOMPARE(SHA256(text).toLatin1(), digest);
        }
    }
};

WZT_TEST(DigestTest)
#include "DigestTest.moc"
