// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "app/Program.h"
#include "app/ServiceRoute.h"

int main(int argc, char *argv[])
{
    const QStringList urls = CommandLine::urls(argc, argv);
    return Program(argc, argv, ServiceRoute::configuration()).run(urls);
}
