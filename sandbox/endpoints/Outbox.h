// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QString>

#include <atomic>

namespace sandbox {

/// The folder of outgoing messages, one file each, which only its owner may read. File names sort
/// in the order of writing. Safe on any thread.
class Outbox {
public:
    /// The first message creates the folder.
    explicit Outbox(const QString &directory) : m_directory(directory) {}

    /// False if the message could not be written; then there is no file.
    bool write(const QByteArray &message);
    /// The messages in the folder, oldest first.
    [[nodiscard]] QByteArrayList messages() const;

private:
    QString m_directory;
    std::atomic<int> m_written{0};
};

} // namespace sandbox
