// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/alerts/UIAlertController.h"
#include "tests/uikit/TestPage.h"
#include "tests/uikit/tables/TableStage.h"

using namespace Qt::StringLiterals;

namespace {

using Stage = TableStage;

/// A touch of a table of a hundred rows, and how often it chooses the second row.
using TableTouch = std::tuple<const char *, void (*)(Stage &), std::size_t>;

void tap(Stage &stage)
{
    stage.tap(stage.second());
}

void scroll(Stage &stage)
{
    stage.drag(stage.second(), stage.second() - QPoint(0, 30));
}

void hold(Stage &stage, const std::function<void(Finger &)> &meanwhile)
{
    Finger finger(stage.view(), stage.second());
    QTRY_VERIFY(stage.cell(2)->isHighlighted());
    meanwhile(finger);
    QTRY_VERIFY(!stage.cell(2)->isHighlighted()); // moves are delivered with a frame
    finger.lift();
}

void present(const Stage &stage, const std::shared_ptr<UIViewController> &controller)
{
    stage.table->presentViewController(controller, true);
}

} // namespace

/// Fingers and keys on rows.
class TableTouchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRowIsChosenOnce()
    {
        const auto byMouse = [](TableStage &stage) {
            QTest::mouseClick(&stage.view(), Qt::LeftButton, {}, stage.second());
        };
        const auto byReturn = [](TableStage &stage) {
            stage.keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return});
        };
        const auto bySpace = [](TableStage &stage) {
            stage.keys({Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Space});
        };
        const auto byReader = [](TableStage &stage) { stage.press(stage.table->text({0, 1})); };
        void (*const ways[])(TableStage &) = {byMouse, byReturn, bySpace, byReader};
        for (const auto choose : ways) {
            TableStage stage({2, 0, 2});
            // The action itself reloads the table.
            stage.table->whenChosen = [&] { stage.table->tableView()->reloadData(); };
            choose(stage);
            QCOMPARE(stage.table->chosen, (std::vector<NSIndexPath>{{0, 1}}));
        }
    }

    void rowsActWhenLetGoOf_data()
    {
        addCases<TableTouch>({
            {"a tap", tap, 1},
            {"two quick taps", [](Stage &stage) { tap(stage), tap(stage); }, 2},
            {"a double click",
             [](Stage &stage) {
                 QTest::mouseDClick(&stage.view(), Qt::LeftButton, {}, stage.second());
             },
             2},
            {"two quick scrolls", [](Stage &stage) { scroll(stage), scroll(stage); }, 0},
            {"a tap and at once a scroll", [](Stage &stage) { tap(stage), scroll(stage); }, 1},
            {"held, then scrolled",
             [](Stage &stage) {
                 hold(stage, [&](Finger &finger) { finger.move(finger.at() - QPoint(0, 30)); });
             },
             0},
            {"held through a reload",
             [](Stage &stage) {
                 hold(stage, [&](Finger &) { stage.table->tableView()->reloadData(); });
             },
             0},
            {"held while an alert comes",
             [](Stage &stage) {
                 hold(stage,
                      [&](Finger &) { present(stage, make<UIAlertController>(u""_s, u""_s)); });
             },
             0},
            {"two fingers on rows that present",
             [](Stage &stage) {
                 stage.table->whenChosen = [&] { present(stage, make<TestPage>()); };
                 auto fingers = QTest::touchEvent(&stage.view(), Finger::screen(), false);
                 const QPoint other = stage.centre(stage.entry(4));
                 fingers.press(0, stage.second()).press(1, other).commit();
                 fingers.release(0, stage.second()).release(1, other).commit();
             },
             1},
        });
    }

    void rowsActWhenLetGoOf()
    {
        const auto &[name, run, chosen] = currentCase<TableTouch>();
        TableStage stage({100});
        run(stage);
        QCOMPARE(stage.table->chosen, std::vector<NSIndexPath>(chosen, {0, 1}));
    }

    void aPressedRowAndTheChosenOneAreMarked()
    {
        TableStage stage({100});
        const auto marked = [&] {
            QList<int> entries;
            for (const int entry : {1, 2, 3}) {
                if (stage.part(entry, "selection")->opacity() > 0) {
                    entries.append(entry);
                }
            }
            return entries;
        };
        const QPointF at = stage.second();
        QMouseEvent press(QEvent::MouseButtonPress, at, stage.view().mapToGlobal(at),
                          Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&stage.view(), &press);
        QVERIFY2(marked().isEmpty(), "it may be a scroll that begins");
        QTRY_COMPARE(marked(), QList{2});
        QTest::mouseMove(&stage.view(), stage.second() + QPoint(0, 100));
        QTest::mouseRelease(&stage.view(), Qt::LeftButton, {}, stage.second() + QPoint(0, 100));
        QTRY_VERIFY(marked().isEmpty());
        QVERIFY(stage.table->chosen.empty());
        for (const int entry : {1, 2}) {
            stage.table->tableView()->activateEntry(entry);
        }
        stage.table->tableView()->deselectRowAtIndexPath({0, 0}, true); // which is not any more
        for (const double offset : {3000, 0}) { // out of sight and back
            stage.list()->setProperty("contentY", offset);
            stage.grab();
        }
        QCOMPARE(marked(), QList{2});
        stage.table->tableView()->deselectRowAtIndexPath({0, 1}, true);
        QTRY_VERIFY(marked().isEmpty());
    }

    // Even if rows come into sight or leave it meanwhile.
    void aPulledTableFollowsTheFinger()
    {
        for (const bool atEnd : {false, true}) {
            auto table = make<SampleTable>(std::vector{2000});
            table->height = [](const NSIndexPath &at) { // low at both ends
                return at.row < 12 || at.row > 1988 ? 44 : 44 + at.row * 37 % 200;
            };
            TableStage stage(std::move(table));
            if (atEnd) {
                stage.key(Qt::Key_End);
            }
            stage.grab();
            const QQuickItem *row = stage.entry(atEnd ? 1999 : 1);
            const double rest = TestWindow::rect(row).y();
            const int way = atEnd ? -1 : 1;
            Finger finger(stage.view(), {200, atEnd ? 700 : 150});
            double before = 0;
            for (int step = 1; step < 12; ++step) {
                finger.move({200, (atEnd ? 700 : 150) + way * 50 * step});
                const double pulled = way * (TestWindow::rect(row).y() - rest);
                QVERIFY(step == 1 || qAbs(pulled - before - 25) < 10); // half as far
                before = pulled;
            }
            finger.lift();
            QTRY_COMPARE(TestWindow::rect(row).y(), rest);
        }
    }
};

WZT_TEST(TableTouchTest)
#include "TableTouchTest.moc"
