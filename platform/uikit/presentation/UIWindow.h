// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/TransitionStack.h"

/// The one window: a root controller and the controllers presented over it.
class UIWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(TransitionStack *presentation READ presentation CONSTANT FINAL)

public:
    UIWindow();
    ~UIWindow() override;

    /// Shows the window; its controllers appear from now on.
    void makeKeyAndVisible();

    [[nodiscard]] UIViewController *rootViewController() const;
    /// Set once, before anything is presented.
    void setRootViewController(std::shared_ptr<UIViewController> controller);

    /// The root at the bottom, the presented controllers above it.
    [[nodiscard]] TransitionStack *presentation() { return &m_presentation; }

private:
    TransitionStack m_presentation;
};
