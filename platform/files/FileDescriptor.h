// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Closes a file descriptor at the end of its scope.
class FileDescriptor {
public:
    /// Takes `descriptor` over; a negative one stands for none.
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor();
    Q_DISABLE_COPY_MOVE(FileDescriptor)

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }

private:
    int m_descriptor;
};
