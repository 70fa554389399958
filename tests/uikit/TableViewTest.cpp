// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"
#include "tests/uikit/SampleTable.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QVariant value(SampleTable &table, int entry, const char *role)
{
    const UITableViewEntries &entries = *table.tableView()->entries();
    return entries.data(entries.index(entry), entries.roleNames().key(role));
}

SampleCell *cellAt(SampleTable &table, int entry)
{
    return static_cast<SampleCell *>(value(table, entry, "cell").value<UITableViewCell *>());
}

} // namespace

/// What a table does without being drawn.
class TableViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sectionsAreLaidOutAsOneList()
    {
        const auto table = make<SampleTable>(std::vector{3, 0, 2});
        UITableViewEntries &entries = *table->tableView()->entries();
        const QAbstractItemModelTester tester(&entries);
        constexpr double free = UITableViewAutomaticDimension;
        const std::vector<std::tuple<QString, double, int>> expected{
            {u""_s, free, 0},        {u"Row 0.0"_s, free, 1}, {u"Row 0.1"_s, free, 2},
            {u"Row 0.2"_s, 70, 3},   {u""_s, 14, 4},          {u"Above"_s, free, 0},
            {u"Below,"_s, free, 1},  {u""_s, free, 0},        {u"Row 2.0"_s, free, 1},
            {u"Row 2.1"_s, free, 2}, {u""_s, free, 3},
        };
        QCOMPARE(entries.rowCount(), static_cast<int>(expected.size()));
        for (int i = 0; i < entries.rowCount(); ++i) {
            const auto &[name, height, position] = expected[static_cast<std::size_t>(i)];
            const UITableViewCell *cell = cellAt(*table, i);
            const QString text = value(*table, i, "text").toString();
            QCOMPARE((cell ? cell->accessibilityLabel() : text).left(7).trimmed(), name);
            QCOMPARE(entries.indexPathOf(i).has_value(), cell != nullptr);
            QCOMPARE(value(*table, i, "fixedHeight").toDouble(), height);
            QCOMPARE(value(*table, i, "position").toInt(), position);
        }
        QCOMPARE(entries.rowBeside(3, 1), 8); // over an empty section
        QCOMPARE(entries.rowBeside(8, -1), 3);
        QCOMPARE(entries.rowBeside(9, 1), -1);
    }

    void nothingIsAskedBeforeATableIsDrawn()
    {
        const auto table = make<SampleTable>(std::vector{1});
        QSignalSpy reset(table->tableView()->entries(), &QAbstractItemModel::modelReset);
        table->tableView()->reloadData();
        QCOMPARE(reset.count(), 0);
        QVERIFY(!table->isViewLoaded());
    }

    void cellsAreMadeByClassAndPreparedWhenReused()
    {
        UITableView table(UITableViewStyle::Grouped);
        QVERIFY(!table.dequeueReusableCellWithIdentifier(u"sample"_s));
        table.registerClass<SampleCell>(u"sample"_s);
        table.registerClass<UITableViewCell>(u"plain"_s);
        QVERIFY(!table.dequeueReusableCellWithIdentifier<SampleCell>(u"plain"_s));
        auto cell = table.dequeueReusableCellWithIdentifier<SampleCell>(u"sample"_s);
        QCOMPARE(cell->viewUrl(), QUrl(u"qrc:/qt/qml/UIKit/UITableViewCellView.qml"_s));

        cell->setSelected(true, false);
        cell->setHighlighted(true);
        cell->textLabel()->setText(u"kept"_s);
        const SampleCell *first = cell.get();
        table.recycle(std::move(cell));
        cell = table.dequeueReusableCellWithIdentifier<SampleCell>(u"sample"_s);
        QCOMPARE(cell.get(), first);
        QVERIFY(!cell->isSelected() && !cell->isHighlighted());
        QCOMPARE(cell->textLabel()->text(), u"kept"_s);
        QVERIFY(table.dequeueReusableCellWithIdentifier(u"sample"_s).get() != first);
    }

    void cellsThatAreNeverDequeuedDoNotPileUp()
    {
        UITableView table(UITableViewStyle::Grouped);
        for (int i = 0; i < 500; ++i) {
            const QString identifier = i % 2 ? u"anew"_s : QString();
            table.recycle(make<SampleCell>(UITableViewCellStyle::Default, identifier));
        }
        QTRY_VERIFY(SampleCell::living < 100);
    }

    void aChosenRowIsSelectedUntilItIsDeselected()
    {
        const auto controller = make<SampleTable>(std::vector{2});
        UITableView &table = *controller->tableView();
        UITableViewCell *first = cellAt(*controller, 1);
        UITableViewCell *second = cellAt(*controller, 2);
        for (const int entry : {1, 2, 3}) // the last is a footer
            table.chooseEntry(entry);
        QCOMPARE(controller->chosen, (std::vector<NSIndexPath>{{0, 0}, {0, 1}}));
        QVERIFY(!first->isSelected() && second->isSelected() && second->drawsSelection());

        table.cellHidden(second); // scrolled away and back
        QVERIFY(cellAt(*controller, 2)->isSelected());
        table.deselectRowAtIndexPath({0, 0}, true);
        QCOMPARE(table.indexPathForSelectedRow(), NSIndexPath({0, 1}));
        table.deselectRowAtIndexPath({0, 1}, true);
        QVERIFY(!cellAt(*controller, 2)->isSelected());
        QVERIFY(cellAt(*controller, 2)->animatesSelection());

        first->setSelectionStyle(UITableViewCellSelectionStyle::None);
        first->setHighlighted(true);
        QVERIFY(!first->drawsSelection());
    }
};

WZT_TEST(TableViewTest)
#include "TableViewTest.moc"
