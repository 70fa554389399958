// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Files.h"
#include "harness/TestRunner.h"
#include "model/BuildConstants.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QString id = QString::fromLatin1(BuildConstants::applicationId);
const QString scheme = "x-scheme-handler/"_L1 + QLatin1StringView(BuildConstants::urlScheme);
const QString program = QFileInfo(QStringLiteral(WZT_PROGRAM)).fileName();

} // namespace

/// The files that describe the application to the desktop agree with the program.
class DesktopEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheProgram()
    {
        if (!TestRunner::startsPrograms()) {
            QSKIP("no program can be started here");
        }
        const QTemporaryDir prefix;
        QCOMPARE(QProcess::execute(
                     QStringLiteral(WZT_CMAKE),
                     {u"--install"_s, QStringLiteral(WZT_PACKAGING), u"--prefix"_s, prefix.path()}),
                 0);
        const QString share = prefix.filePath(u"share/"_s);
        const QString name = QString::fromUtf8(BuildConstants::displayName);
        const QString validator = QStandardPaths::findExecutable(u"desktop-file-validate"_s);
        if (!validator.isEmpty()) {
            QCOMPARE(
                QProcess::execute(validator, {share + u"applications/"_s + id + u".desktop"_s}), 0);
        }
        // A file, and the lines that it has to have.
        const std::pair<QString, QStringList> rows[] = {
            {share + u"applications/"_s + id + u".desktop"_s,
             {"Name="_L1 + name, "Icon="_L1 + id, "Exec="_L1 + program + " %u"_L1,
              "MimeType="_L1 + scheme + u';', "StartupWMClass="_L1 + id}},
            {share + u"metainfo/"_s + id + u".metainfo.xml"_s,
             {"<id>"_L1 + id + "</id>"_L1, "<name>"_L1 + name + "</name>"_L1,
              "<launchable type=\"desktop-id\">"_L1 + id + ".desktop</launchable>"_L1,
              "<binary>"_L1 + program + "</binary>"_L1,
              "<mediatype>"_L1 + scheme + "</mediatype>"_L1,
              "<release version=\""_L1 + QLatin1StringView(BuildConstants::version)}},
            {share + u"dbus-1/services/"_s + id + u".service"_s,
             {"Name="_L1 + id, "Exec="_L1 + prefix.filePath(u"bin/"_s + program)}},
            {QStringLiteral(WZT_PACKAGING "/") + id + u".yml"_s,
             {"id: "_L1 + id, "command: "_L1 + program}},
        };
        for (const auto &[path, lines] : rows) {
            const QString text = QString::fromUtf8(Files::content(path));
            for (const QString &line : lines) {
                const QRegularExpression start(u"^ *"_s + QRegularExpression::escape(line),
                                               QRegularExpression::MultilineOption);
                QVERIFY2(start.match(text).hasMatch(), qPrintable(line));
            }
            QVERIFY(!text.contains(u'@'));
        }
    }
};

WZT_TEST(DesktopEntryTest)
#include "DesktopEntryTest.moc"
