// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/HTTPLoader.h"

#include "platform/files/Module.h"

#include <QFile>

std::unique_ptr<HTTPLoader> HTTPLoader::load(const NSURLSessionConfiguration &configuration,
                                             const HTTPProxy &proxy)
{
    const QByteArray file = QFile::encodeName(configuration.httpModule);
    auto *make = Module::function<MakeHTTPLoader>(file.constData(), "makeHTTPLoader");
    return std::unique_ptr<HTTPLoader>(make ? make(configuration, proxy) : nullptr);
}
