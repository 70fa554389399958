// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Part of every test program under the thread sanitizer. Qt 6.4 starts a process by a clone that
// shares the memory until it executes the program; the sanitizer takes the calls of the clone for
// those of the thread that waits for it, and then misses that thread's locks. A fork does not share
// it.

#include <cstdarg>

#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

// clone(2) as QProcess calls it, with a process file descriptor.
extern "C" int clone(int (*body)(void *), void *, int flags, void *argument, ...)
{
    int *descriptor = nullptr;
    if (flags & CLONE_PIDFD) {
        std::va_list more;
        va_start(more, argument);
        descriptor = va_arg(more, int *);
        va_end(more);
    }
    const pid_t child = fork();
    if (child == 0) {
        _exit(body(argument));
    }
    if (child > 0 && descriptor) {
        *descriptor = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
    }
    return child;
}
