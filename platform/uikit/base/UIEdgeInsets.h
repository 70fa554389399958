// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// Room at the edges, in points.
struct UIEdgeInsets {
    Q_GADGET
    QML_VALUE_TYPE(uiEdgeInsets)
    Q_PROPERTY(double top MEMBER top FINAL)
    Q_PROPERTY(double left MEMBER left FINAL)
    Q_PROPERTY(double bottom MEMBER bottom FINAL)
    Q_PROPERTY(double right MEMBER right FINAL)

public:
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    bool operator==(const UIEdgeInsets &) const = default;
};
