// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/ActivationTokens.h"

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct TokenName {
    QLatin1StringView platformData;
    const char *environment;
};

constexpr std::array tokenNames{
    TokenName{"activation-token"_L1, "XDG_ACTIVATION_TOKEN"},
    TokenName{"desktop-startup-id"_L1, "DESKTOP_STARTUP_ID"},
};

/// The environment entries of the tokens. Other threads read the environment, so its list must not
/// change while they run; only the values of these entries do.
constexpr size_t entryLength = 512;
constinit std::array<std::array<char, entryLength>, tokenNames.size()> entries{};

void setToken(size_t i, const QByteArray &token)
{
    const QByteArray entry = tokenNames[i].environment + ('=' + token);
    if (static_cast<size_t>(entry.size()) < entryLength) {
        std::copy_n(entry.constData(), entry.size() + 1, entries[i].data());
    }
}

} // namespace

void ActivationTokens::prepareEnvironment()
{
    for (size_t i = 0; i < tokenNames.size(); ++i) {
        setToken(i, {});
        setToken(i, qgetenv(tokenNames[i].environment));
        ::putenv(entries[i].data());
    }
}

QVariantMap ActivationTokens::platformData()
{
    QVariantMap data;
    for (const TokenName &name : tokenNames) {
        if (const QString token = qEnvironmentVariable(name.environment); !token.isEmpty()) {
            data.insert(name.platformData, token);
        }
    }
    return data;
}

ActivationTokens::Scope::Scope(const QVariantMap &platformData)
{
    for (size_t i = 0; i < tokenNames.size(); ++i) {
        setToken(i, platformData.value(tokenNames[i].platformData).toString().toUtf8());
    }
}

ActivationTokens::Scope::~Scope()
{
    for (size_t i = 0; i < tokenNames.size(); ++i) {
        setToken(i, {});
    }
}
