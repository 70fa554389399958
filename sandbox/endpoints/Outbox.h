// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QString>

#include <atomic>

namespace sandbox {

/// The folder where messages wait, one file each, readable for its owner alone. File names sort in
/// the order of writing. Safe on any thread.
class Outbox {
public:
    /// Nothing is made before the first message.
    explicit Outbox(const QString &directory) : m_directory(directory) {}

    /// False if the message could not be written; nothing is left of it then.
    bool write(const QByteArray &message);
    /// The messages in it, oldest first.
    [[nodiscard]] QByteArrayList messages() const;

private:
    QString m_directory;
    std::atomic<int> m_written{0};
};

} // namespace sandbox
