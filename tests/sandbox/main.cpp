// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"

#include <QCoreApplication>

#include <curl/curl.h>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    curl_global_init(CURL_GLOBAL_DEFAULT);
    const int failures = TestRunner::run();
    curl_global_cleanup();
    return failures;
}
