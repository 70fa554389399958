// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/tables/TableStage.h"

using namespace Qt::StringLiterals;

namespace {

struct Subtitle {
    const char *name;
    QString title;
    QString detail;
    int lines; // that each may have
    int titleLines;
    int detailLines;
};

} // namespace

/// The geometry of a table, and the rows that it makes.
class TableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entriesStandWhereThePlatformPutsThem()
    {
        TableStage stage({3, 3, 3});
        const double rows = 208 + 18;
        const double footer = stage.entry(9)->height();
        QVERIFY(footer > 18 + 2 * 14); // its text wraps
        const std::tuple<int, double, double> expected[] = {
            {0, 0, 36},
            {1, 36, 44},
            {2, 80, 44},
            {3, 124, 70}, // fixed height
            {4, 194, 14}, // fixed footer
            {5, 208, 18},
            {6, rows, 44},
            {8, rows + 88, 44},
            {10, rows + 132 + footer, 18},
            {14, rows + 132 + footer + 18 + 132, 18},
        };
        for (const auto &[entry, y, height] : expected) {
            const QRectF place(stage.entry(entry)->position(), stage.entry(entry)->size());
            QCOMPARE(place, QRectF(0, y, 390, height));
        }
        QCOMPARE(stage.part(1, "textLabel")->mapToItem(stage.entry(1), QPointF()).x(), 16);
        QCOMPARE(stage.part(1, "separator")->x(), 16); // between rows
        QCOMPARE(stage.part(2, "separator")->x(), 16 + 29 + 16); // after an image
        QCOMPARE(stage.part(3, "separator")->x(), 0); // at the end of a section
        QCOMPARE(stage.grab().pixelColor(22, 102).name(), u"#ff0000"_s); // no template
        QCOMPARE(stage.part(1, "separator")->y() + stage.part(1, "separator")->height(), 44);

        stage.application.traits().setOverride(DesktopAppearance{.textScale = 2});
        QTRY_VERIFY(stage.entry(1)->height() > 44);
        stage.table->tableView()->setSeparatorStyle(UITableViewCellSeparatorStyle::None);
        QVERIFY(!stage.part(1, "separator")->isVisible());
    }

    void rowsFitTheirTexts_data()
    {
        const QString words = u"many words "_s.repeated(9);
        addCases<Subtitle>({
            {"a title alone", u"One"_s, {}, 0, 1, 0},
            {"both", u"One"_s, u"<b>more</b>"_s, 0, 1, 1},
            {"as many lines as needed", words, words, 0, 3, 2},
            {"two at most", words, words, 2, 2, 2},
            {"a word without end", QString(90, u'm'), u"a\nb"_s, 0, 4, 2},
        });
    }

    void rowsFitTheirTexts()
    {
        const Subtitle &row = currentCase<Subtitle>();
        auto table = make<SampleTable>(std::vector{50});
        table->makeRow = [&row] {
            auto cell = make<SampleCell>(UITableViewCellStyle::Subtitle, u"sample"_s);
            cell->textLabel()->setText(row.title);
            cell->textLabel()->setNumberOfLines(row.lines);
            cell->detailTextLabel()->setText(row.detail);
            cell->detailTextLabel()->setNumberOfLines(row.lines);
            return cell;
        };
        table->height = [](const auto &) { return UITableViewAutomaticDimension; };
        TableStage stage(std::move(table));
        const QQuickItem *upper = stage.part(1, "textLabel");
        const QQuickItem *lower = stage.part(1, "detailTextLabel");
        QCOMPARE(upper->property("lineCount").toInt(), row.titleLines);
        QCOMPARE(lower->height() > 0 ? lower->property("lineCount").toInt() : 0, row.detailLines);
        const double texts = upper->height() + (row.detail.isEmpty() ? 0 : 3) + lower->height();
        QCOMPARE(stage.entry(1)->height(), qMax(44.0, texts + 2 * 11));
        QCOMPARE(upper->mapToItem(stage.entry(1), QPointF()),
                 QPointF(16, std::floor((stage.entry(1)->height() - texts) / 2)));
        for (const QQuickItem *label : {upper, lower}) {
            QCOMPARE(label->width(), 390 - 2 * 16);
            QVERIFY(label->property("contentWidth").toDouble() <= label->width());
        }
        stage.application.traits().setOverride(DesktopAppearance{.textScale = 1.5});
        for (const QQuickItem *label : {upper, lower}) {
            QVERIFY2(!label->property("truncated").toBool(), "enlarged text is cut");
        }
    }

    void cellsDoNotPileUp()
    {
        for (const bool anew : {true, false}) {
            auto table = make<SampleTable>(std::vector{100000});
            if (anew) { // which nobody asks for again
                table->makeRow = [] { return make<SampleCell>(UITableViewCellStyle{}, u"anew"_s); };
            }
            TableStage stage(std::move(table));
            QVERIFY2(SampleCell::living < 40, "rows are made before they are seen");
            for (int page = 0; page < 20; ++page) {
                stage.key(Qt::Key_PageDown);
            }
            QTRY_VERIFY(SampleCell::living < (anew ? 60 : 80));
            if (!anew) {
                stage.key(Qt::Key_End);
                QCOMPARE(stage.cell(100000)->textLabel()->text(), u"Row 0.99999"_s);
                stage.keys({Qt::Key_PageUp, Qt::Key_Return});
                const int row = stage.table->chosen.at(0).row;
                QVERIFY(row > 99950 && row < 99990);
            }
        }
    }

    void aHighRowIsReadByKeyToItsEnd()
    {
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_PageUp}) {
            auto table = make<SampleTable>(std::vector{4});
            table->height = [](const NSIndexPath &at) { return at.row % 2 == 1 ? 3000 : 44; };
            TableStage stage(std::move(table));
            const bool down = key == Qt::Key_Down || key == Qt::Key_PageDown;
            stage.keys({down ? Qt::Key_Home : Qt::Key_End});
            for (int presses = 0; presses < 90; ++presses) {
                const QPointer row = stage.list()->property("currentItem").value<QQuickItem *>();
                const double before = TestWindow::rect(row).y();
                stage.key(key);
                QVERIFY(!row || qAbs(TestWindow::rect(row).y() - before) <= stage.view().height());
            }
            QCOMPARE(stage.list()->property("currentIndex").toInt(), down ? 4 : 1);
            const QRectF row = TestWindow::rect(stage.entry(down ? 4 : 1));
            QVERIFY(down ? row.bottom() <= stage.view().height() : row.top() >= 0);
        }
    }
};

WZT_TEST(TableTest)
#include "TableTest.moc"
