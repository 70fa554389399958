// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Launch.h"
#include "app/ServiceRoute.h"

int main(int argc, char *argv[])
{
    return Launch(argc, argv, ServiceRoute::configuration()).run();
}
