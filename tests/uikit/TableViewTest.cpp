// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UITableViewController.h"
#include "tests/support/TestRunner.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

namespace {

class NoteCell : public UITableViewCell {
    Q_OBJECT
    Q_CLASSINFO("view", "Notes/NoteCellView.qml")

public:
    using UITableViewCell::UITableViewCell;
    int preparations = 0;
    void prepareForReuse() override
    {
        UITableViewCell::prepareForReuse();
        ++preparations;
    }
};

/// A table whose rows are counted in `rows`, and which writes down what it is asked.
class Notes : public UITableViewController {
    Q_OBJECT

public:
    std::vector<int> rows{2, 0, 3};
    int countsAsked = 0;
    std::vector<NSIndexPath> chosen;
    std::function<void(const NSIndexPath &)> whenChosen;

    Notes() : UITableViewController(UITableViewStyle::Grouped)
    {
        tableView()->registerClass<NoteCell>(u"note"_s);
    }
    [[nodiscard]] int numberOfSections() const override { return static_cast<int>(rows.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const override
    {
        ++const_cast<Notes *>(this)->countsAsked;
        return rows.at(static_cast<std::size_t>(section));
    }
    std::shared_ptr<UITableViewCell> cellForRowAtIndexPath(const NSIndexPath &at) override
    {
        auto cell = tableView()->dequeueReusableCellWithIdentifier(u"note"_s);
        cell->textLabel()->setText(u"%1.%2"_s.arg(at.section).arg(at.row));
        return cell;
    }
    [[nodiscard]] double heightForRowAtIndexPath(const NSIndexPath &at) const override
    {
        return at == NSIndexPath{2, 1} ? 60 : UITableViewAutomaticDimension;
    }
    [[nodiscard]] double heightForFooterInSection(int section) const override
    {
        return section == 0 ? 14 : 0;
    }
    [[nodiscard]] std::optional<QString> titleForHeaderInSection(int section) const override
    {
        return section == 2 ? std::optional(u"Last"_s) : std::nullopt;
    }
    [[nodiscard]] std::optional<QString> titleForFooterInSection(int section) const override
    {
        return section == 1 ? std::optional(u"None yet"_s) : std::nullopt;
    }
    void didSelectRowAtIndexPath(const NSIndexPath &at) override
    {
        chosen.push_back(at);
        if (whenChosen)
            whenChosen(at);
    }

    /// What is drawn at an entry: a row's cell, or else a text and a height.
    UITableViewCell *cell(int entry) { return value(entry, "cell").value<UITableViewCell *>(); }
    QVariant value(int entry, const char *role)
    {
        const UITableViewEntries &entries = *tableView()->entries();
        return entries.data(entries.index(entry), entries.roleNames().key(role));
    }
};

} // namespace

/// What a table does without being drawn.
class TableViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sectionsAreLaidOutAsOneList()
    {
        const auto notes = make<Notes>();
        UITableViewEntries &entries = *notes->tableView()->entries();
        const QAbstractItemModelTester tester(&entries);
        struct Expected {
            QString label;
            QString text;
            double height;
            int position;
        };
        const double free = UITableViewAutomaticDimension;
        const std::vector<Expected> expected{
            {u""_s, u""_s, free, 0},     {u"0.0"_s, u""_s, free, 1},
            {u"0.1"_s, u""_s, free, 2},  {u""_s, u""_s, 14, 3},
            {u""_s, u""_s, free, 0},     {u""_s, u"None yet"_s, free, 1},
            {u""_s, u"Last"_s, free, 0}, {u"2.0"_s, u""_s, free, 1},
            {u"2.1"_s, u""_s, 60, 2},    {u"2.2"_s, u""_s, free, 3},
            {u""_s, u""_s, free, 4},
        };
        QCOMPARE(entries.rowCount(), static_cast<int>(expected.size()));
        for (int i = 0; i < entries.rowCount(); ++i) {
            const Expected &entry = expected[static_cast<std::size_t>(i)];
            UITableViewCell *cell = notes->cell(i);
            QCOMPARE(cell ? cell->accessibilityLabel() : QString(), entry.label);
            QCOMPARE(entries.indexPathOf(i).has_value(), cell != nullptr);
            QCOMPARE(notes->value(i, "text").toString(), entry.text);
            QCOMPARE(notes->value(i, "fixedHeight").toDouble(), entry.height);
            QCOMPARE(notes->value(i, "position").toInt(), entry.position);
        }
        QCOMPARE(notes->value(8, "rows").toInt(), 3);
        QCOMPARE(entries.rowBeside(2, 1), 7); // over a footer, an empty section and a header
        QCOMPARE(entries.rowBeside(7, -1), 2);
        QCOMPARE(entries.rowBeside(9, 1), -1);
        QCOMPARE(entries.rowBeside(-1, 1), 1);
    }

    void nothingIsAskedBeforeATableIsDrawn()
    {
        const auto notes = make<Notes>();
        notes->tableView()->reloadData();
        QCOMPARE(notes->countsAsked, 0);
        QVERIFY(!notes->isViewLoaded());
        const auto plain = make<UITableViewController>(UITableViewStyle::Grouped);
        QCOMPARE(plain->tableView()->entries()->rowCount(), 2);
        QCOMPARE(plain->view(), plain->tableView());
    }

    void reloadedRowsReuseTheCells_data()
    {
        QTest::addColumn<std::vector<int>>("rows");
        QTest::newRow("as many") << std::vector{2, 0, 3};
        QTest::newRow("more") << std::vector{7};
        QTest::newRow("fewer") << std::vector{0, 1};
        QTest::newRow("none") << std::vector<int>{};
    }

    void reloadedRowsReuseTheCells()
    {
        QFETCH(const std::vector<int>, rows);
        const auto notes = make<Notes>();
        UITableViewEntries &entries = *notes->tableView()->entries();
        const QAbstractItemModelTester tester(&entries);
        std::set<UITableViewCell *> cells;
        for (int i = 0; i < entries.rowCount(); ++i)
            cells.insert(notes->cell(i));
        notes->rows = rows;
        notes->tableView()->reloadData();

        int reused = 0;
        int shown = 0;
        for (int i = 0; i < entries.rowCount(); ++i) {
            const auto *cell = static_cast<NoteCell *>(notes->cell(i));
            shown += cell ? 1 : 0;
            reused += cell && cells.contains(notes->cell(i)) ? 1 : 0;
            QVERIFY(!cell || cell->preparations == (cells.contains(notes->cell(i)) ? 1 : 0));
        }
        QCOMPARE(shown, std::accumulate(rows.begin(), rows.end(), 0));
        QCOMPARE(reused, std::min(shown, 5));
    }

    void cellsAreMadeByClassAndPreparedWhenReused()
    {
        UITableView table(UITableViewStyle::Grouped);
        QVERIFY(!table.dequeueReusableCellWithIdentifier(u"note"_s));
        table.registerClass<NoteCell>(u"note"_s);
        table.registerClass<UITableViewCell>(u"plain"_s);
        auto note = table.dequeueReusableCellWithIdentifier<NoteCell>(u"note"_s);
        QCOMPARE(note->reuseIdentifier(), u"note"_s);
        QCOMPARE(note->viewUrl(), QUrl(u"qrc:/qt/qml/Notes/NoteCellView.qml"_s));
        QCOMPARE(table.dequeueReusableCellWithIdentifier(u"plain"_s)->viewUrl(),
                 QUrl(u"qrc:/qt/qml/UIKit/UITableViewCellView.qml"_s));
        QVERIFY(!table.dequeueReusableCellWithIdentifier<NoteCell>(u"plain"_s));

        note->setSelected(true, false);
        note->setHighlighted(true);
        note->textLabel()->setText(u"kept"_s);
        const NoteCell *first = note.get();
        table.recycle(std::move(note));
        note = table.dequeueReusableCellWithIdentifier<NoteCell>(u"note"_s);
        QCOMPARE(note.get(), first);
        QCOMPARE(note->preparations, 1);
        QVERIFY(!note->isSelected() && !note->isHighlighted());
        QCOMPARE(note->textLabel()->text(), u"kept"_s);
        QVERIFY(table.dequeueReusableCellWithIdentifier(u"note"_s).get() != first);
    }

    void cellsThatAreNeverDequeuedDoNotPileUp()
    {
        UITableView table(UITableViewStyle::Grouped);
        std::vector<QPointer<UITableViewCell>> cells;
        for (int i = 0; i < 500; ++i) {
            auto cell =
                make<UITableViewCell>(UITableViewCellStyle::Default, i % 2 ? u"anew"_s : QString());
            cells.emplace_back(cell.get());
            table.recycle(std::move(cell));
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(std::count_if(cells.begin(), cells.end(), [](const auto &c) { return !!c; }) < 100);
    }

    void aChosenRowIsSelectedUntilItIsDeselected()
    {
        const auto notes = make<Notes>();
        UITableView &table = *notes->tableView();
        UITableViewCell *first = notes->cell(1);
        UITableViewCell *second = notes->cell(2);
        table.chooseEntry(1);
        table.chooseEntry(2);
        table.chooseEntry(3); // a footer
        QCOMPARE(notes->chosen, (std::vector<NSIndexPath>{{0, 0}, {0, 1}}));
        QVERIFY(!first->isSelected() && second->isSelected() && second->drawsSelection());

        table.cellHidden(second); // scrolled away and back
        QVERIFY(notes->cell(2)->isSelected());
        table.deselectRowAtIndexPath({0, 0}, true);
        QCOMPARE(table.indexPathForSelectedRow(), NSIndexPath({0, 1}));
        table.deselectRowAtIndexPath({0, 1}, true);
        QVERIFY(!notes->cell(2)->isSelected() && notes->cell(2)->animatesSelection());
        QCOMPARE(table.indexPathForSelectedRow(), std::nullopt);

        second->setSelectionStyle(UITableViewCellSelectionStyle::None);
        second->setHighlighted(true);
        QVERIFY(!second->drawsSelection());
    }

    void aTableMayBeReloadedByItsOwnRow()
    {
        const auto notes = make<Notes>();
        notes->whenChosen = [&](const NSIndexPath &) {
            notes->rows = {1};
            notes->tableView()->reloadData();
        };
        UITableViewCell *cell = notes->cell(1);
        notes->tableView()->chooseEntry(1);
        QCOMPARE(notes->tableView()->entries()->rowCount(), 3);
        QVERIFY(!notes->cell(1)->isSelected());
        QVERIFY(cell->viewUrl().isValid()); // still alive
    }
};

WZT_TEST(TableViewTest)
#include "TableViewTest.moc"
