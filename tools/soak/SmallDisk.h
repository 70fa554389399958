// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/FullDisk.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// A disk of 4 MiB that this process and those that it starts see on an empty folder.
class SmallDisk {
public:
    /// Mounts it, where this user may.
    explicit SmallDisk(const QString &folder);
    ~SmallDisk();
    Q_DISABLE_COPY_MOVE(SmallDisk)

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    /// Deletes what a killed process has filled it with.
    void empty() const;

private:
    QByteArray m_folder;
    bool m_isMounted = false;
};

/// While it lives the disk is full: the small disk on `folder`, or without one any disk, for this
/// process alone.
class FilledDisk {
public:
    /// An empty folder: there is no small disk.
    explicit FilledDisk(const QString &folder);
    ~FilledDisk();
    Q_DISABLE_COPY_MOVE(FilledDisk)

    /// Takes the space that has become free.
    void refill() const;

private:
    QByteArray m_folder;
    std::optional<FullDisk> m_limit;
};
