// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Part of every test program under the thread sanitizer. Until Qt 6.8 a process is started by a
// clone that shares its memory until it executes the program; the sanitizer takes the calls of the
// clone for those of the thread that waits for it, and then misses that thread's locks. A fork does
// not.

#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>

// clone(2) as QProcess calls it, with a process file descriptor.
extern "C" int clone(int (*body)(void *), void *, int, void *argument, ...)
{
    std::va_list more;
    va_start(more, argument);
    int *descriptor = va_arg(more, int *);
    va_end(more);
    const pid_t child = fork();
    if (child == 0) {
        _exit(body(argument));
    }
    if (child > 0) {
        *descriptor = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
    }
    return child;
}
