// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/qml/WindowWatcher.h"

/// Has every key of its window while it is there. What has the keyboard keeps it, and with it the
/// on-screen keyboard, but hears nothing of the keys.
class KeyTaker : public WindowWatcher {
    Q_OBJECT
    QML_ELEMENT

public:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
