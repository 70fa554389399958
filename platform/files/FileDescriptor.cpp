// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/files/FileDescriptor.h"

#include <unistd.h>

FileDescriptor::~FileDescriptor()
{
    if (isOpen()) {
        close(m_descriptor);
    }
}
