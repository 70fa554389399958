// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/WindowStage.h"
#include "platform/uikit/tables/TableList.h"
#include "tests/uikit/tables/SampleTable.h"

/// A table in a window of its own. At its end every cell must be destroyed.
class TableStage : public WindowStage {
public:
    explicit TableStage(std::vector<int> rows) : TableStage(make<SampleTable>(std::move(rows))) {}
    explicit TableStage(std::shared_ptr<SampleTable> shown) : table(std::move(shown))
    {
        show(table);
        grab();
    }
    ~TableStage()
    {
        close();
        window.reset();
        table.reset();
        QTRY_COMPARE(SampleCell::living, 0);
    }
    Q_DISABLE_COPY_MOVE(TableStage)

    /// Fetches other rows, until the drawings of those that went are gone.
    void reload(std::vector<int> rows)
    {
        table->rows = std::move(rows);
        table->word += u'!';
        table->tableView()->reloadData();
        grab();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        grab();
        everyRowSaysItsText();
    }
    void everyRowSaysItsText() const
    {
        for (const int index : madeEntries()) {
            const auto at = table->tableView()->entries()->indexPathOf(index);
            if (at && entry(index)) { // null for the current row when it is out of sight
                QCOMPARE(part(index, "textLabel")->property("text").toString(), table->text(*at));
            }
        }
    }

    [[nodiscard]] QQuickItem *list() const { return named(QStringLiteral("list")); }
    [[nodiscard]] double offset() const { return TableList(list()).contentY(); }
    /// The entries that are drawn, in the order of their drawings.
    [[nodiscard]] QList<int> madeEntries() const
    {
        QList<int> entries;
        for (const QQuickItem *drawn : TableList(list()).contentItem()->childItems()) {
            const QVariant index = drawn->property("index");
            if (index.isValid() && drawn->isVisible()) {
                entries.append(index.toInt());
            }
        }
        return entries;
    }
    /// The drawing of an entry: of a row, or of the space around a section.
    [[nodiscard]] QQuickItem *entry(int index) const { return TableList(list()).itemAt(index); }
    /// A named part of it.
    [[nodiscard]] QQuickItem *part(int index, const char *name) const
    {
        return named(entry(index), QLatin1String(name));
    }
    [[nodiscard]] SampleCell *cell(int index) const
    {
        return static_cast<SampleCell *>(entry(index)->property("cell").value<UITableViewCell *>());
    }
    /// The middle of the second row.
    [[nodiscard]] QPoint second() const { return centre(entry(2)); }

    std::shared_ptr<SampleTable> table;
};
