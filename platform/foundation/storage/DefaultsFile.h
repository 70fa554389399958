// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/FileDescriptor.h"

#include <QByteArray>
#include <QString>

/// A small file that only its user may read (0600, in a folder of 0700). A process that is killed
/// at any moment leaves the old content or the new one.
class DefaultsFile {
public:
    enum class State {
        Read,
        /// There is no such file.
        Absent,
        /// The name belongs to a folder, a pipe or the like, or the file is too long or closed to
        /// this user.
        Unreadable,
        /// The system failed (no more open files, a failing disk).
        Unavailable,
    };

    /// Keeps other processes from changing the folder during its lifetime.
    class Lock {
    public:
        /// Makes the folder and its parents if they are missing. Waits for another process for a
        /// tenth of a second at most; after a failure the next lock does not wait at all.
        explicit Lock(const DefaultsFile &file);
        [[nodiscard]] bool isHeld() const { return m_held; }

    private:
        friend class DefaultsFile;
        FileDescriptor m_folder;
        bool m_held = false;
    };

    /// A file longer than `maximumLength` bytes is not read. The folder may be a link; its target
    /// keeps its mode.
    DefaultsFile(const QString &folder, const QString &name, qsizetype maximumLength);

    /// Appends the file's content to `content`. Never blocks, not even on a pipe.
    [[nodiscard]] State read(QByteArray *content) const;

    /// Replaces the file, of whatever kind, and returns when the new one is on the disk. False:
    /// nothing was changed.
    [[nodiscard]] bool write(const Lock &lock, const QByteArray &content) const;

    /// Deletes the file and the temporary file of a killed writer. Takes no space on the disk, and
    /// no lock, which another process may hold. False: the file is still there.
    [[nodiscard]] bool remove() const;

    /// Deletes the temporary file of a writer that was killed. A removal wins over a writer that is
    /// still at work: its record is not kept.
    void removeTemporary() const;

    /// Moves the file, of whatever kind, into a new folder beside it, `<name>.damaged-XXXXXX`.
    [[nodiscard]] bool moveAside(const Lock &lock) const;

    /// Deletes every file that was moved aside. False: one is still there.
    [[nodiscard]] bool removeMovedAside() const;

private:
    [[nodiscard]] QByteArray path() const { return m_folder + '/' + m_name; }

    QByteArray m_folder;
    QByteArray m_name;
    qsizetype m_maximumLength;
    mutable bool m_waitsForLock = true;
};
