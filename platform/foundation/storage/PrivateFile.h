// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/storage/FileDescriptor.h"

#include <QByteArray>
#include <QString>

/// A small file that only its user may read (0600, in a folder of 0700) and that a process killed
/// at any moment leaves whole: the old content or the new one.
class PrivateFile {
public:
    enum class State {
        Read,
        /// There is no such file.
        Absent,
        /// There is something under the name, but it is no file, too long for one of these, or not
        /// for this user to read.
        Unreadable,
        /// The system could not look (no more open files, a failing disk).
        Unavailable,
    };

    /// Keeps other processes from changing the folder while it lives.
    class Lock {
    public:
        /// Makes the folder and its parents if they are missing. Waits for another process a
        /// tenth of a second at most, and not again while the lock is not to be had.
        explicit Lock(const PrivateFile &file);
        [[nodiscard]] bool isHeld() const { return m_held; }

    private:
        friend class PrivateFile;
        FileDescriptor m_folder;
        bool m_held = false;
    };

    /// What is longer than `maximumLength` bytes is not read. The folder may be a link; the one
    /// that it leads to keeps its mode.
    PrivateFile(const QString &folder, const QString &name, qsizetype maximumLength);

    /// Appends what the file holds to `content`. Never waits: not for a pipe either.
    [[nodiscard]] State read(QByteArray *content) const;

    /// Replaces the file, whatever it is, and returns when that is on the disk. False: nothing was
    /// changed.
    [[nodiscard]] bool write(const Lock &lock, const QByteArray &content) const;

    /// Deletes the file for good, and what a killed writer left, which takes no space; without the
    /// lock, for nothing else may stand in its way either. False: it is still there.
    [[nodiscard]] bool remove() const;

    /// Moves the file, whatever it is, into a new folder beside it, `<name>.damaged-XXXXXX`.
    [[nodiscard]] bool moveAside(const Lock &lock) const;

    /// Deletes every file that was moved aside, for good. False: one is still there.
    [[nodiscard]] bool removeMovedAside() const;

private:
    [[nodiscard]] QByteArray path() const { return m_folder + '/' + m_name; }
    [[nodiscard]] QByteArray temporaryName() const { return m_name + ".tmp"; }

    QByteArray m_folder;
    QByteArray m_name;
    qsizetype m_maximumLength;
    mutable bool m_patient = true;
};
