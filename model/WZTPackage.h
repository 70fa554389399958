// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <vector>

/// A project that issues can be reported against. Two packages are never equal, only the same one:
/// they are shared by pointer.
class WZTPackage {
public:
    WZTPackage(QString identifier, QString name);
    Q_DISABLE_COPY_MOVE(WZTPackage)

    /// The projects there are, always in the same order, made anew at each call.
    [[nodiscard]] static std::vector<std::shared_ptr<WZTPackage>> allPackages();

    /// Names the project on the service: the vendor prefix, a full stop and the project's key.
    QString bundleIdentifier;
    /// The name to show.
    QString name;
};
