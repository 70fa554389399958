// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/tables/TableStage.h"

using namespace Qt::StringLiterals;

/// Tables whose rows change while they are looked at.
class TableReloadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aReloadKeepsThePlace()
    {
        for (const auto &[before, after] : {std::pair(100, 100), {100, 200}, {100, 3}, {100, 0}}) {
            TableStage stage({before});
            const int living = SampleCell::living;
            stage.reload({before});
            QVERIFY2(SampleCell::living == living, "others are made before these are handed back");
            stage.list()->setProperty("contentY", 1000);
            stage.reload({after});
            QTRY_COMPARE(stage.offset(), after < 100 ? stage.entry(0)->y() : 1000);
            for (int i = 1; i <= after && stage.entry(i); ++i) {
                QVERIFY(stage.cell(i)->preparations > 0);
            }
            QVERIFY(SampleCell::living < 80);
        }
    }

    /// The drawing of a row that is removed or scrolled away goes later than the row does, and has
    /// its cell until then.
    void aLeavingCellIsNotReused()
    {
        for (const double away : {0, 500, 5000}) {
            TableStage stage({9, 200});
            stage.list()->setProperty("contentY", away);
            stage.reload({1, 200});
            for (const double offset : {300, 900, 0}) {
                stage.list()->setProperty("contentY", offset);
                stage.grab();
                stage.everyRowSaysItsText();
            }
        }
    }

    void noMoreCellsAreKeptThanATallScreenHas()
    {
        auto table = make<SampleTable>(std::vector{1000});
        table->height = [](const auto &) { return 5; };
        TableStage stage(std::move(table));
        QVERIFY(SampleCell::living > 150);
        stage.reload({0});
        QTRY_COMPARE(SampleCell::living, 64);
    }

    /// As screen readers and Tab take them.
    void rowsStandInTheirOrder()
    {
        TableStage stage(std::vector{0, 2});
        for (const int rows : {30, 5, 300, 100, 0, 40}) {
            stage.reload({rows, 2});
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp}) {
                stage.key(key);
                stage.grab();
                stage.everyRowSaysItsText();
                QList<int> entries = stage.madeEntries();
                std::ranges::sort(entries);
                QVERIFY(entries.size() > rows % 100);
                QCOMPARE(stage.madeEntries(), entries);
            }
        }
    }

    void aReloadLeavesTheFingerAlone()
    {
        TableStage stage({2000});
        stage.list()->setProperty("contentY", 2000);
        Finger finger(stage.view(), {200, 700});
        finger.move({200, 400});
        const double before = stage.offset();
        QVERIFY(before > 2200);
        stage.reload({1990});
        QCOMPARE(stage.offset(), before);
        finger.move({200, 300});
        QVERIFY2(qAbs(stage.offset() - before - 100) < 25, "the finger has lost it");
        finger.lift();
        QVERIFY(stage.list()->property("flicking").toBool());
        stage.table->tableView()->reloadData();
        stage.grab();
        QVERIFY2(stage.list()->property("flicking").toBool(), "it stops");
        QVERIFY(stage.offset() >= before + 100);
    }

    void aReloadLeavesTheKeyboardWithItsRow()
    {
        TableStage stage({20, 30}); // so short that all are made
        stage.keys({Qt::Key_Home, Qt::Key_Down});
        const QPointer<QQuickItem> label = stage.part(2, "textLabel");
        stage.reload({50, 2000});
        QVERIFY2(SampleCell::living < 80, "all of a long one are made");
        stage.key(Qt::Key_Return);
        QVERIFY2(label, "a screen reader loses its place");
        stage.keys({Qt::Key_End, Qt::Key_Return});
        stage.reload({3, 2});
        stage.keys({Qt::Key_End, Qt::Key_Return});
        stage.reload({3}); // with it the current row goes
        stage.keys({Qt::Key_Up, Qt::Key_Return});
        QCOMPARE(stage.table->chosen,
                 (std::vector<NSIndexPath>{{0, 1}, {1, 1999}, {1, 1}, {0, 2}}));
    }
};

WZT_TEST(TableReloadTest)
#include "TableReloadTest.moc"
