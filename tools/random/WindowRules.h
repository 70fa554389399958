// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/TransitionStack.h"
#include "platform/uikit/tables/UITableView.h"

#include <QPointer>
#include <QQuickView>

/// Rules that hold in the window of any application after any touch.
class WindowRules {
public:
    /// `window` draws `presentation`.
    WindowRules(QQuickView &window, TransitionStack &presentation);
    ~WindowRules();
    Q_DISABLE_COPY_MOVE(WindowRules)

    /// A row of a table; no table for none.
    struct Row {
        QPointer<UITableView> table;
        std::optional<NSIndexPath> at;

        bool operator==(const Row &) const = default;
    };
    /// The row that a finger at `point` would press.
    [[nodiscard]] Row rowAt(const QPoint &point) const;
    /// Whether nothing moves and no menu is open.
    [[nodiscard]] bool isStill() const;
    /// The list that can be seen and touched; null for none.
    [[nodiscard]] QQuickItem *list() const;
    /// The table that a list draws.
    [[nodiscard]] static UITableView *tableOf(const QQuickItem &list);

    /// From here to `acted` fingers and keys do something.
    void begin();
    /// The first fault since, empty for none, if at most these rows may have been chosen and
    /// at most so many pages have come.
    [[nodiscard]] QString acted(QList<Row> mayBeChosen, int pages);
    /// The rows chosen since `begin`.
    [[nodiscard]] const QList<Row> &chosen() const { return m_chosen; }
    /// The same once nothing is in a transition and nothing touches the window.
    [[nodiscard]] QString settled() const;

private:
    class Delegate;

    void observeTables();
    [[nodiscard]] QList<QQuickItem *> items(const char *type) const;
    [[nodiscard]] int pageCount() const;
    [[nodiscard]] QString tables() const;
    [[nodiscard]] QString focus() const;

    QQuickView &m_window;
    TransitionStack &m_presentation;
    QList<Row> m_chosen;
    int m_pages = 0;
    std::vector<std::unique_ptr<Delegate>> m_delegates;
};
