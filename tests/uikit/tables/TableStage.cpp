// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/tables/TableStage.h"

#include "harness/TestRunner.h"

TableStage::TableStage(std::shared_ptr<SampleTable> shown) : table(std::move(shown))
{
    show(table);
    grab();
}

TableStage::~TableStage()
{
    close();
    window.reset();
    table.reset();
    QTRY_COMPARE(SampleCell::living, 0);
}

void TableStage::reload(std::vector<int> rows)
{
    table->rows = std::move(rows);
    table->word += u'!';
    table->tableView()->reloadData();
    grab();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    grab();
    everyRowSaysItsText();
}

void TableStage::everyRowSaysItsText() const
{
    for (const int index : madeEntries()) {
        const auto at = table->tableView()->entries()->indexPathOf(index);
        if (at && entry(index)) { // null for the current row when it is out of sight
            QCOMPARE(part(index, "textLabel")->property("text").toString(), table->text(*at));
        }
    }
}

QList<int> TableStage::madeEntries() const
{
    QList<int> entries;
    const auto *content = list()->property("contentItem").value<QQuickItem *>();
    for (const QQuickItem *drawn : content->childItems()) {
        const QVariant index = drawn->property("index");
        if (index.isValid() && drawn->isVisible()) {
            entries.append(index.toInt());
        }
    }
    return entries;
}

QQuickItem *TableStage::entry(int index) const
{
    QQuickItem *found = nullptr;
    QMetaObject::invokeMethod(list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found),
                              Q_ARG(int, index));
    return found;
}

SampleCell *TableStage::cell(int index) const
{
    return static_cast<SampleCell *>(entry(index)->property("cell").value<UITableViewCell *>());
}
