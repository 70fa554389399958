// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/foundation/url/NSURLSession.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"

#include <array>
#include <atomic>
#include <cstring>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

std::array<QByteArray, 4> secrets;
std::atomic<bool> isWatching = false;
std::atomic<int> found = 0;

QByteArray memoryOf(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

// The sanitizers have an allocator of their own.
#ifndef __has_feature
#define __has_feature(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)                                  \
    || __has_feature(address_sanitizer)
constexpr bool isInterposed = false;
#else
constexpr bool isInterposed = true;

void look(void *block)
{
    if (!isWatching || !block) {
        return;
    }
    const size_t size = malloc_usable_size(block);
    for (const QByteArray &secret : secrets) {
        const auto length = static_cast<size_t>(secret.size());
        found += memmem(block, size, secret.constData(), length) ? 1 : 0;
    }
}
#endif

} // namespace

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)                                \
    && !__has_feature(address_sanitizer)
extern "C" void __libc_free(void *block);

extern "C" void free(void *block) noexcept
{
    look(block);
    __libc_free(block);
}

// A block that grows may move, and its old place is freed.
extern "C" void *realloc(void *block, size_t size) noexcept
{
    void *const moved = malloc(size);
    if (moved && block) {
        std::memcpy(moved, block, std::min(size, malloc_usable_size(block)));
        free(block);
    }
    return moved;
}
#endif

class SecretsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Neither the password nor its digest, as texts or within a URL.
    void areInNoMemoryThatIsFreed()
    {
        if (!isInterposed) {
            QSKIP("The sanitizer's allocator cannot be watched.");
        }
        const QString password = u"Qz7!kW"_s + u"vN3#xB"_s;
        const QString digest = SHA256(password);
        secrets = {password.toUtf8(), memoryOf(password), digest.toLatin1(), memoryOf(digest)};
        isWatching = true;
        char *const volatile copy = strdup(secrets[0].constData()); // or it would be left out
        free(copy);
        QCOMPARE(found.exchange(0), 1);

        NSURLSessionConfiguration withoutNetwork;
        withoutNetwork.httpModule = u"/dev/null"_s;
        std::atomic<int> replies = 0;
        {
            NSURLSession session(withoutNetwork);
            NSURLSession::setSharedSession(&session);
            const auto count = [&](NSUInteger, const auto &) { ++replies; };
            WZTAPI::loginToAccount(u"jo@wzt.example"_s, SHA256(password), count);
            WZTAPI::registerEmail(u"jo@wzt.example"_s, u"Jo"_s, SHA256(password), count);
            WZTAPI::updateAccount(u"jo@wzt.example"_s, u"Jo"_s, SHA256(password), SHA256(password),
                                  count);
            QTRY_COMPARE(replies.load(), 3);
        }
        isWatching = false;
        QCOMPARE(found.load(), 0);
    }
};

WZT_TEST(SecretsTest)
#include "SecretsTest.moc"
