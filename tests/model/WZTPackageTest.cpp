// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "model/BuildConstants.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

class WZTPackageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCallMakesTheSameProjectsAnew()
    {
        const std::pair<QString, QString> rows[] = {
            {u".pintle"_s, u"Pintle"_s},    {u".itsmarrow"_s, u"Marrow!"_s},
            {u".qelvan"_s, u"QELVAN"_s},    {u".tessaroo"_s, u"tessaroo"_s},
            {u".halden3"_s, u"Halden 3"_s}, {u".kiteloom"_s, u"KiteLoom"_s},
        };
        const auto packages = WZTPackage::allPackages();
        const auto others = WZTPackage::allPackages();
        QCOMPARE(packages.size(), std::size(rows));
        for (size_t i = 0; i < std::size(rows); ++i) {
            for (const auto &package : {packages[i], others.at(i)}) {
                QCOMPARE(package->bundleIdentifier,
                         QLatin1StringView(BuildConstants::vendorPrefix) + rows[i].first);
                QCOMPARE(package->name, rows[i].second);
            }
            QVERIFY(packages[i] != others[i]);
        }
    }
};

WZT_TEST(WZTPackageTest)
#include "WZTPackageTest.moc"
