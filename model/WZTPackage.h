// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <vector>

/// A project of the bug reporter. Packages are compared by identity and shared by pointer.
class WZTPackage {
public:
    WZTPackage(QString identifier, QString name);
    Q_DISABLE_COPY_MOVE(WZTPackage)

    /// All projects, always in the same order. Each call makes new objects.
    [[nodiscard]] static std::vector<std::shared_ptr<WZTPackage>> allPackages();

    /// The project's identifier on the service: the vendor prefix, a full stop and the project's
    /// key.
    QString bundleIdentifier;
    /// The display name.
    QString name;
};
