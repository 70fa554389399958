// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// The program as it is, over the service that its arguments name.

#include "app/Program.h"

int main(int argc, char *argv[])
{
    NSURLSessionConfiguration service;
    service.certificateAuthorityFile = QString::fromLocal8Bit(argv[1]);
    service.connectTo = QString::fromLocal8Bit(argv[2]);
    return Program(argc, argv, service).run({});
}
