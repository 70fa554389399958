// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/FaultWords.h"

#include "sandbox/faults/CommandSyntax.h"

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr int longestDelay = 24 * 3600 * 1000;

Fault redirect(FaultArguments &arguments)
{
    const QString where = arguments.text(0);
    if (where == "loop"_L1) {
        return Fault::redirectLoop();
    }
    if (where == "further"_L1) {
        return Fault::redirectFurther();
    }
    if (where == "http"_L1) {
        return Fault::redirectToHttp();
    }
    if (where == "host"_L1) {
        return Fault::redirectToOtherHost();
    }
    if (where.startsWith(u'/')) {
        return Fault::redirectToPath(where.toUtf8());
    }
    if (!where.contains("://"_L1)) {
        arguments.refuse();
    }
    return Fault::redirect(where.toUtf8());
}

constexpr int maximum = std::numeric_limits<int>::max();

constexpr std::array table{
    FaultWord{"delay"_L1, 1, [](FaultArguments &a) { return Fault::delay(a.time(0)); },
              "delay MS               the real answer, so many milliseconds later"},
    FaultWord{"silence"_L1, 0, [](FaultArguments &) { return Fault::silence(); },
              "silence                accepted and never answered"},
    FaultWord{"close"_L1, 0, [](FaultArguments &) { return Fault::close(); },
              "close                  closed without an answer"},
    FaultWord{"reset"_L1, 0, [](FaultArguments &) { return Fault::reset(); },
              "reset                  half the real answer, then a TCP reset"},
    FaultWord{
        "cut"_L1, 1, [](FaultArguments &a) { return Fault::cut(a.number(0, 0, maximum)); },
        "cut BYTES              so much of the real answer, then TCP is closed and TLS is not"},
    FaultWord{"length"_L1, 1,
              [](FaultArguments &a) { return Fault::wrongLength(a.number(0, -maximum, maximum)); },
              "length DIFFERENCE      the real answer, its Content-Length off by so many bytes"},
    FaultWord{
        "unmeasured"_L1, 0,
        [](FaultArguments &) { return Fault().withoutLength().ending(Transmission::Ending::Cut); },
        "unmeasured             the real answer without a length, then TCP is closed and TLS "
        "is not"},
    FaultWord{"gzip"_L1, 1, [](FaultArguments &a) { return Fault::gzip(a.number(0, 0, maximum)); },
              "gzip MISSING           the real answer compressed, less so many bytes at its end"},
    FaultWord{"surplus"_L1, 1,
              [](FaultArguments &a) { return Fault::surplus(unescape(a.bytes(0))); },
              "surplus BYTES          the real answer, and a moment later these bytes"},
    FaultWord{"drip"_L1, 2,
              [](FaultArguments &a) { return Fault::drip(a.number(0, 1, maximum), a.time(1)); },
              "drip BYTES MS          the real answer in pieces, with pauses"},
    FaultWord{"status"_L1, 1,
              [](FaultArguments &a) { return Fault::status(a.number(0, 200, 999)); },
              "status CODE            the real answer under another HTTP status"},
    FaultWord{"json"_L1, 2,
              [](FaultArguments &a) { return Fault::json(a.bytes(1), a.number(0, 200, 999)); },
              "json CODE BODY         this body under this HTTP status"},
    FaultWord{
        "raw"_L1, 1, [](FaultArguments &a) { return Fault::raw(unescape(a.bytes(0))); },
        "raw BYTES              these bytes and nothing else; \\r \\n \\t \\\\ \\xNN are bytes"},
    FaultWord{"endless"_L1, 0, [](FaultArguments &) { return Fault::endless(); },
              "endless                a body without an end"},
    FaultWord{"key-updates"_L1, 1,
              [](FaultArguments &a) { return Fault::keyUpdates(a.number(0, 1, maximum)); },
              "key-updates NUMBER     the real answer after so many TLS key updates"},
    FaultWord{"redirect"_L1, 1, redirect,
              "redirect WHERE         loop, further, http, host (this service's other name), "
              "/path, a URL"},
};

} // namespace

std::chrono::milliseconds FaultArguments::time(int index)
{
    return std::chrono::milliseconds(number(index, 0, longestDelay));
}

std::span<const FaultWord> faultWords()
{
    return table;
}

} // namespace sandbox
