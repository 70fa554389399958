// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"

#include "model/BuildConstants.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct Project {
    QLatin1StringView key;
    QLatin1StringView name;
};

constexpr Project projects[] = {
    {"pintle"_L1, "Pintle"_L1},     {"itsmarrow"_L1, "Marrow!"_L1}, {"qelvan"_L1, "QELVAN"_L1},
    {"tessaroo"_L1, "tessaroo"_L1}, {"halden3"_L1, "Halden 3"_L1},  {"kiteloom"_L1, "KiteLoom"_L1},
};

} // namespace

WZTPackage::WZTPackage(QString identifier, QString displayName)
    : bundleIdentifier(std::move(identifier)), name(std::move(displayName))
{
}

std::vector<std::shared_ptr<WZTPackage>> WZTPackage::allPackages()
{
    const QString prefix = QLatin1StringView(BuildConstants::vendorPrefix) + u'.';
    std::vector<std::shared_ptr<WZTPackage>> packages;
    for (const Project &project : projects) {
        packages.push_back(std::make_shared<WZTPackage>(prefix + project.key, project.name));
    }
    return packages;
}
