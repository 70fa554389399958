// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include "model/BuildConstants.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// The options that Qt itself reads in a program with windows. A session manager passes some of
/// them when it restores the program.
QList<QCommandLineOption> qtOptions()
{
    QList<QCommandLineOption> options{QCommandLineOption(u"reverse"_s)};
    for (const QLatin1StringView name :
         {"display"_L1, "geometry"_L1, "icon"_L1, "name"_L1, "platform"_L1, "platformpluginpath"_L1,
          "platformtheme"_L1, "plugin"_L1, "qmljsdebugger"_L1, "qwindowgeometry"_L1,
          "qwindowicon"_L1, "qwindowtitle"_L1, "session"_L1, "title"_L1}) {
        options.append(QCommandLineOption(name, QString(), name));
    }
    for (QCommandLineOption &option : options) {
        option.setFlags(QCommandLineOption::HiddenFromHelp);
    }
    return options;
}

void describe(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        u"Account, bug reports and package repositories in one touch application."_s);
    parser.addPositionalArgument(u"URL"_s,
                                 QLatin1StringView(BuildConstants::urlScheme)
                                     + ": URLs that open the application."_L1,
                                 u"[URL...]"_s);
    parser.addOption(QCommandLineOption({u"h"_s, u"help"_s}, u"Show this help."_s));
    parser.addVersionOption();
    parser.addOptions(qtOptions());
}

} // namespace

QStringList CommandLine::urls(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }

    QCommandLineParser parser;
    describe(parser);
    const bool isValid = parser.parse(arguments);
    if (!isValid || parser.isSet(u"help"_s) || parser.isSet(u"version"_s)) {
        // The parser takes the program's name from this object.
        const QCoreApplication application(argc, argv);
        QCoreApplication::setApplicationName(u"wzt-companion"_s);
        QCoreApplication::setApplicationVersion(QLatin1StringView(BuildConstants::version));
        if (isValid && parser.isSet(u"help"_s)) {
            parser.showHelp();
        }
        parser.process(arguments);
    }
    return parser.positionalArguments();
}
