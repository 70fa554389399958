// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/BareConnection.h"
#include "bench/Figures.h"
#include "bench/Measurements.h"
#include "harness/TestApp.h"
#include "service/WZTAPI.h"

#include <semaphore>

using namespace Qt::StringLiterals;

namespace {

constexpr int requestRounds = 300;
const auto package = u"example.wzt.tessaroo"_s;

/// From the call to its completion, which decodes the reply.
void listIssues()
{
    std::binary_semaphore completed(0);
    WZTAPI::issuesForPackageIdentifier(package, [&](NSUInteger code, const auto &) {
        if (code != 0) {
            qFatal("the issues cannot be listed");
        }
        completed.release();
    });
    completed.acquire();
}

} // namespace

void measureRequests(const QStringList &)
{
    TestApp app;
    app.launch();
    const QByteArray request = "GET /issues.php?packageId=" + package.toUtf8()
        + " HTTP/1.1\r\nHost: localhost\r\nAccept: */*\r\n\r\n";
    QList<double> figures;
    QList<double> floor;
    for (int round = 0; round < requestRounds; ++round) {
        figures.append(timed(listIssues));
        floor.append(timed([&] {
            BareConnection connection(app.service().port(), app.service().caFile());
            connection.exchange(request, "[]");
        }));
    }
    const Table table(
        u"A request over a connection of its own, beside the same bytes over bare TLS"_s,
        {u"figure"_s, u"floor"_s, u"times"_s});
    table.comparison(u"an empty list of issues, ms"_s, median(figures), median(floor));
}
