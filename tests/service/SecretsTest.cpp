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

} // namespace

// The sanitizers have an allocator of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
extern "C" void __libc_free(void *block);

extern "C" void free(void *block) noexcept
{
    if (isWatching && block) {
        const size_t size = malloc_usable_size(block);
        for (const QByteArray &secret : secrets) {
            const auto length = static_cast<size_t>(secret.size());
            found += memmem(block, size, secret.constData(), length) ? 1 : 0;
        }
    }
    __libc_free(block);
}
#endif

class SecretsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Neither the password nor its digest, as texts or within a URL.
    void areInNoMemoryThatIsFreed()
    {
        const QString password = u"pass"_s + u"word"_s;
        const QString digest = SHA256(password);
        secrets = {password.toUtf8(), memoryOf(password), digest.toLatin1(), memoryOf(digest)};
        NSURLSessionConfiguration withoutNetwork;
        withoutNetwork.httpModule = u"/dev/null"_s;
        int replies = 0;
        isWatching = true;
        {
            NSURLSession session(withoutNetwork);
            NSURLSession::setSharedSession(&session);
            const auto count = [&](NSUInteger, const auto &) { ++replies; };
            WZTAPI::loginToAccount(u"jo@wzt.example"_s, SHA256(password), count);
            WZTAPI::registerEmail(u"jo@wzt.example"_s, u"Jo"_s, SHA256(password), count);
            WZTAPI::updateAccount(u"jo@wzt.example"_s, u"Jo"_s, SHA256(password), SHA256(password),
                                  count);
        }
        isWatching = false;
        QCOMPARE(replies, 3);
        QCOMPARE(found.load(), 0);
    }
};

WZT_TEST(SecretsTest)
#include "SecretsTest.moc"
