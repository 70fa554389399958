// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// The program as it is, over the service that its arguments name, with a request of its own under
// way from the first moment of its main loop on.

#include "app/Launch.h"
#include "platform/foundation/Dispatch.h"
#include "service/WZTAPI.h"

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    NSURLSessionConfiguration service;
    service.certificateAuthorityFile = QString::fromLocal8Bit(argv[1]);
    service.connectTo = QString::fromLocal8Bit(argv[2]);
    Launch launch(argc, argv, service);
    QMetaObject::invokeMethod(
        qApp,
        [] {
            WZTAPI::issuesForPackageIdentifier(
                u"example.wzt.pending"_s, [](NSUInteger, const auto &) {
                    dispatchAsyncMain([] { std::puts("completed"); });
                });
        },
        Qt::QueuedConnection);
    return launch.run();
}
