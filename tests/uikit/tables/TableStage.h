// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/WindowStage.h"
#include "tests/uikit/tables/SampleTable.h"

/// A table in a window of its own. At its end every cell must be destroyed.
class TableStage : public WindowStage {
public:
    explicit TableStage(std::vector<int> rows) : TableStage(make<SampleTable>(std::move(rows))) {}
    explicit TableStage(std::shared_ptr<SampleTable> shown);
    ~TableStage();
    Q_DISABLE_COPY_MOVE(TableStage)

    /// Fetches other rows, until the drawings of those that went are gone.
    void reload(std::vector<int> rows);
    void everyRowSaysItsText() const;

    [[nodiscard]] QQuickItem *list() const { return named(QStringLiteral("list")); }
    [[nodiscard]] double offset() const { return list()->property("contentY").toDouble(); }
    /// The entries that are drawn, in the order of their drawings.
    [[nodiscard]] QList<int> madeEntries() const;
    /// The drawing of an entry: of a row, or of the space around a section.
    [[nodiscard]] QQuickItem *entry(int index) const;
    /// A named part of it.
    [[nodiscard]] QQuickItem *part(int index, const char *name) const
    {
        return named(entry(index), QLatin1String(name));
    }
    [[nodiscard]] SampleCell *cell(int index) const;
    /// The middle of the second row.
    [[nodiscard]] QPoint second() const { return centre(entry(2)); }

    std::shared_ptr<SampleTable> table;
};
