// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration/qqmlintegration.h>

#include <functional>
#include <memory>
#include <vector>

class UIViewController;

/// The controllers of a TransitionStack as a model for drawing. A row is one controller, the bottom
/// one first.
class TransitionList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the base of a transition stack")

public:
    enum class Phase { Entering, Settled, Leaving };
    Q_ENUM(Phase)
    /// Whether a controller hides those below it.
    enum class Cover { Covers, Overlays };
    enum class Motion { Animated, Immediate };
    /// `Blocked`: a controller above has the touches and the keyboard. `Concealed`: a settled
    /// controller above hides it wholly. `Overlay`: it does not cover those below it.
    enum Role {
        ControllerRole = Qt::UserRole,
        PhaseRole,
        AnimatedRole,
        BlockedRole,
        ConcealedRole,
        OverlayRole
    };
    using Completion = std::function<void()>;

    TransitionList();
    ~TransitionList() override;

    /// Whether `controller` is in the stack and not leaving.
    [[nodiscard]] bool contains(const UIViewController *controller) const;
    /// The topmost controller that is not leaving; null for an empty stack.
    [[nodiscard]] UIViewController *top() const;
    /// The nearest controller above or below that is not leaving; null for none.
    [[nodiscard]] UIViewController *above(const UIViewController *controller) const;
    [[nodiscard]] UIViewController *below(const UIViewController *controller) const;
    /// The controllers that are not leaving, bottom first.
    [[nodiscard]] std::vector<std::shared_ptr<UIViewController>> controllers() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// The topmost controller that is not leaving is another one.
    void topChanged();

protected:
    /// Controllers that leave together, and what runs when the last of them has gone.
    struct Departure {
        int remaining = 0;
        Completion completion;
    };
    struct Entry {
        std::shared_ptr<UIViewController> controller;
        Cover cover = Cover::Covers;
        Motion motion = Motion::Immediate;
        Phase phase = Phase::Entering;
        Completion entered = {};
        std::shared_ptr<Departure> departure = {};
    };

    [[nodiscard]] const std::vector<Entry> &entries() const { return m_entries; }
    [[nodiscard]] Entry &entry(int index) { return m_entries[static_cast<std::size_t>(index)]; }
    [[nodiscard]] const Entry &entry(int index) const
    {
        return m_entries[static_cast<std::size_t>(index)];
    }
    /// The row of `controller`; -1 for none.
    [[nodiscard]] int indexOf(const UIViewController *controller) const;
    void append(Entry entry);
    [[nodiscard]] Entry take(int index);
    /// Announces that entries changed.
    void announceChange();

private:
    [[nodiscard]] UIViewController *nearest(int from, int direction) const;
    [[nodiscard]] bool isBlocked(int index) const;
    [[nodiscard]] bool isConcealed(int index) const;

    std::vector<Entry> m_entries;
    const UIViewController *m_announcedTop = nullptr;
};
