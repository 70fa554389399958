// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/base/Dispatch.h"

#include <QCoreApplication>

void dispatchAsyncMain(std::function<void()> work)
{
    if (QCoreApplication *application = QCoreApplication::instance()) {
        QMetaObject::invokeMethod(application, std::move(work), Qt::QueuedConnection);
    }
}
