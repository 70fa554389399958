// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"

#include <QString>

#include <optional>
#include <vector>

/// One thing that a person does, or waits for.
struct Step {
    enum class Kind { Tap, Type, Return, Refresh, End, Menu, Keyboard, Await, AwaitEnd, Restart };

    Kind kind;
    QString what = {};
};

/// One picture of the tour: how to get there from a first start.
struct Picture {
    QString name;
    std::vector<Step> steps = {};
    /// The staged answer on that path, if there is one.
    QByteArray path = {};
    std::optional<sandbox::Fault> answer = {};
};

/// Every picture of the tour. The service knows jo@wzt.example and longEmail, has "secret" for the
/// password of both, and issues of every length.
inline constexpr QStringView longEmail =
    u"maximiliane.featherstonehaugh-cholmondeley@correspondence.wzt.example";
[[nodiscard]] std::vector<Picture> allPictures();
