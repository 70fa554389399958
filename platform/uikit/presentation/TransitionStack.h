// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <functional>
#include <memory>
#include <vector>

class UIViewController;

/// How far a controller has come on screen.
enum class AppearanceState { Disappeared, Appearing, Appeared };

/// A stack of controllers of which the topmost shows: a window's presented ones and a navigation
/// controller's pages. It runs their transitions (entering, settled, leaving) and tells them when
/// they appear and disappear; whoever draws it animates and reports each transition's end.
/// What is not drawn settles at once, in the same order.
///
/// A row is one controller, bottom first. A controller that covers hides those below it, which
/// disappear, and appear again when it leaves; one that does not (an alert) changes nothing there.
class TransitionStack : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a window or a navigation controller")

public:
    enum class Phase { Entering, Settled, Leaving };
    Q_ENUM(Phase)
    enum class Cover { Covers, Overlays };
    enum class Motion { Animated, Immediate };
    /// `Blocked`: something above has the touches and the keyboard. `Concealed`: a settled
    /// controller above hides it wholly. `Overlay`: it does not cover what it is above of.
    enum Role {
        ControllerRole = Qt::UserRole,
        PhaseRole,
        AnimatedRole,
        BlockedRole,
        ConcealedRole,
        OverlayRole
    };
    using Completion = std::function<void()>;

    TransitionStack();
    ~TransitionStack() override;

    /// Puts `controller` on top. Its transition's end is announced by `completion`.
    void push(std::shared_ptr<UIViewController> controller, Cover cover, Motion motion,
              Completion completion = {});
    /// Takes `controller` and everything above it away; what is leaving already is left alone.
    /// `completion` runs when all of them have gone.
    void remove(const UIViewController *controller, Motion motion, Completion completion = {});
    /// Takes everything above `controller` away.
    void removeAbove(const UIViewController *controller, Motion motion, Completion completion = {});

    /// Whether `controller` is in the stack and not leaving.
    [[nodiscard]] bool contains(const UIViewController *controller) const;
    /// The topmost controller that is not leaving; null for an empty stack.
    [[nodiscard]] UIViewController *top() const;
    /// The nearest controller above or below that is not leaving; null for none.
    [[nodiscard]] UIViewController *above(const UIViewController *controller) const;
    [[nodiscard]] UIViewController *below(const UIViewController *controller) const;
    /// The controllers that are not leaving, bottom first.
    [[nodiscard]] std::vector<std::shared_ptr<UIViewController>> controllers() const;

    /// How far the stack itself has come on screen: its controllers come no further.
    void setLimit(AppearanceState limit, Motion motion);

    // For whoever draws the stack.
    Q_INVOKABLE void attachView();
    /// Nothing draws the stack any more: pending transitions end.
    Q_INVOKABLE void detachView();
    /// The transition that `controller` was in has ended, or cannot be drawn.
    Q_INVOKABLE void transitionEnded(UIViewController *controller);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// The topmost controller that is not leaving is another one.
    void topChanged();

private:
    struct Departure;
    struct Entry;
    struct Step;

    [[nodiscard]] int indexOf(const UIViewController *controller) const;
    [[nodiscard]] UIViewController *nearest(int from, int direction) const;
    [[nodiscard]] bool isDrawn(Motion motion) const;
    [[nodiscard]] bool isBlocked(int index) const;
    [[nodiscard]] bool isConcealed(int index) const;
    void leaveFrom(int index, Motion motion, Completion completion);
    void settle(const UIViewController *controller);
    void finishEntering(int index);
    void finishLeaving(int index);
    [[nodiscard]] AppearanceState goal(int index) const;
    [[nodiscard]] Step nextStep() const;
    void reconcile(Motion motion);
    void announce();

    std::vector<Entry> m_entries;
    AppearanceState m_limit = AppearanceState::Disappeared;
    const UIViewController *m_announcedTop = nullptr;
    int m_views = 0;
};
