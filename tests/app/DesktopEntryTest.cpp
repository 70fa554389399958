// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/BuildConstants.h"
#include "tests/support/TestRunner.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString id = QString::fromLatin1(BuildConstants::applicationId);
const QString scheme = "x-scheme-handler/"_L1 + QLatin1StringView(BuildConstants::urlScheme);
const QString program = QFileInfo(QStringLiteral(WZT_PROGRAM)).fileName();

} // namespace

/// What tells the desktop of the application: the program has to keep what it says.
class DesktopEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheProgram()
    {
        const QString name = QString::fromUtf8(BuildConstants::displayName);
        // The kind of a file, and the lines that it has to have.
        const std::pair<QString, QStringList> rows[] = {
            {u"desktop"_s,
             {"Name="_L1 + name, "Icon="_L1 + id, "Exec="_L1 + program + " %u"_L1,
              "MimeType="_L1 + scheme + u';', "StartupWMClass="_L1 + id}},
            {u"metainfo.xml"_s,
             {"<id>"_L1 + id + "</id>"_L1, "<name>"_L1 + name + "</name>"_L1,
              "<launchable type=\"desktop-id\">"_L1 + id + ".desktop</launchable>"_L1,
              "<binary>"_L1 + program + "</binary>"_L1,
              "<mediatype>"_L1 + scheme + "</mediatype>"_L1,
              "<release version=\""_L1 + QLatin1StringView(BuildConstants::version)}},
            {u"service"_s, {"Name="_L1 + id, u"Exec=/"_s}},
            {u"yml"_s, {"id: "_L1 + id, "command: "_L1 + program}},
        };
        for (const auto &[kind, lines] : rows) {
            QFile file(QStringLiteral(WZT_DESCRIPTIONS "/") + id + u'.' + kind);
            QVERIFY2(file.open(QFile::ReadOnly), qPrintable(file.fileName()));
            const QString text = QString::fromUtf8(file.readAll());
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
