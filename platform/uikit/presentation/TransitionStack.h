// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/TransitionList.h"

/// How far a controller has come on screen.
enum class AppearanceState { Disappeared, Appearing, Appeared };

/// A stack of controllers of which the topmost shows: a window's presented ones and a navigation
/// controller's pages. It runs their transitions (entering, settled, leaving) and tells them when
/// they appear and disappear. The drawing of the stack animates, and reports the end of each
/// transition; without a drawing a transition ends at once, in the same order.
///
/// A controller that covers hides those below it: they disappear, and appear again when it leaves.
/// One that overlays (an alert) leaves them as they are.
class TransitionStack : public TransitionList {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a window or a navigation controller")

public:
    TransitionStack();
    ~TransitionStack() override;

    /// Puts `controller` on top. `completion` runs when its transition has ended.
    void push(std::shared_ptr<UIViewController> controller, Cover cover, Motion motion,
              Completion completion = {});
    /// Takes `controller` and everything above it away, except controllers that are leaving
    /// already. `completion` runs when all of them have gone.
    void remove(const UIViewController *controller, Motion motion, Completion completion = {});
    /// Takes everything above `controller` away.
    void removeAbove(const UIViewController *controller, Motion motion, Completion completion = {});

    /// Sets how far the stack itself has come on screen: its controllers come no further.
    void setLimit(AppearanceState limit, Motion motion);

    // For the drawing of the stack.
    Q_INVOKABLE void attachView();
    /// Ends pending transitions when no drawing is left.
    Q_INVOKABLE void detachView();
    /// The transition of `controller` has ended, or cannot be drawn.
    Q_INVOKABLE void transitionEnded(UIViewController *controller);

private:
    struct Step;
    struct Rule;

    [[nodiscard]] bool isDrawn(Motion motion) const;
    void leaveFrom(int index, Motion motion, Completion completion);
    [[nodiscard]] std::vector<std::shared_ptr<UIViewController>>
    startLeaving(int index, Motion motion, const std::shared_ptr<Departure> &departure);
    void settle(const UIViewController *controller);
    void finishEntering(int index);
    void finishLeaving(int index);
    [[nodiscard]] AppearanceState goal(int index) const;
    [[nodiscard]] Step nextStep() const;
    void reconcile(Motion motion);

    AppearanceState m_limit = AppearanceState::Disappeared;
    int m_views = 0;
};
