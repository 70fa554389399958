// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/SampleTable.h"
#include "tests/uikit/qml/QmlFixture.h"

#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Rows with a subtitle, one like the other.
class SubtitleTable : public SampleTable {
public:
    QString title;
    QString detail;
    int lines = 0;

    explicit SubtitleTable(int count) : SampleTable({count}) { }
    std::shared_ptr<UITableViewCell> cellForRowAtIndexPath(const NSIndexPath &) override
    {
        auto cell = make<SampleCell>(UITableViewCellStyle::Subtitle, u"sample"_s);
        cell->textLabel()->setText(title);
        cell->textLabel()->setNumberOfLines(lines);
        cell->detailTextLabel()->setText(detail);
        cell->detailTextLabel()->setNumberOfLines(lines);
        return cell;
    }
    [[nodiscard]] double heightForRowAtIndexPath(const NSIndexPath &) const override
    {
        return UITableViewAutomaticDimension;
    }
};

/// Rows of very different heights, the low ones at both ends.
class UnevenTable : public SampleTable {
public:
    explicit UnevenTable(int count) : SampleTable({count}) { }
    [[nodiscard]] double heightForRowAtIndexPath(const NSIndexPath &at) const override
    {
        return at.row < 12 || at.row > rows[0] - 12 ? 44 : 44 + at.row * 37 % 200;
    }
};

struct Subtitle {
    const char *name;
    QString title;
    QString detail;
    int lines; // that each may have
    int titleLines;
    int detailLines;
};

} // namespace

/// Tables in a real window.
class TableDrawingTest : public QObject {
    Q_OBJECT

    const QString press = QAccessibleActionInterface::pressAction();

private Q_SLOTS:
    void cleanup()
    {
        m_fixture.reset();
        m_table.reset();
        QTRY_COMPARE(SampleCell::living, 0);
    }

    void entriesStandWhereThePlatformPutsThem()
    {
        show({3, 3, 3});
        const double header = item(5)->height();
        const double rows = 208 + header;
        const double footer = item(9)->height();
        QVERIFY(header > 18 + 7 + 10); // with its text
        QVERIFY(footer > 18 + 2 * 14); // its text wraps
        const std::tuple<int, double, double> expected[] = {
            {0, 0, 36},
            {1, 36, 44},
            {2, 80, 44},
            {3, 124, 70}, // fixed height
            {4, 194, 14}, // fixed footer
            {6, rows, 44},
            {8, rows + 88, 44},
            {10, rows + 132 + footer, 18},
            {14, rows + 132 + footer + 18 + 132, 18},
        };
        for (const auto &[entry, y, height] : expected) {
            QCOMPARE(item(entry)->y(), y);
            QCOMPARE(item(entry)->height(), height);
            QCOMPARE(item(entry)->width(), 390);
        }
        QCOMPARE(WindowDriver::named(item(1), u"textLabel"_s)->mapToItem(item(1), {}).x(), 16);
        QCOMPARE(separator(1)->x(), 16); // between rows
        QCOMPARE(separator(2)->x(), 16 + 29 + 16); // after an image
        QCOMPARE(separator(3)->x(), 0); // at the end of a section
        QCOMPARE(separator(1)->y() + separator(1)->height(), 44);

        m_fixture->application.traits().setOverride(UIAppearance{.textScale = 2});
        QTRY_VERIFY(item(1)->height() > 44);
        m_table->tableView()->setSeparatorStyle(UITableViewCellSeparatorStyle::None);
        QVERIFY(!separator(1)->isVisible());
    }

    void rowsFitTheirTexts_data()
    {
        const QString words = u"many words "_s.repeated(10);
        addCases<Subtitle>({
            {"a title alone", u"One"_s, {}, 0, 1, 0},
            {"both", u"One"_s, u"<b>more</b>"_s, 0, 1, 1},
            {"as many lines as needed", words, words, 0, 3, 2},
            {"two at most", words, words, 2, 2, 2},
            {"one", words, words, 1, 1, 1},
            {"a word without end", QString(90, u'm'), u"a\nb"_s, 0, 4, 2},
        });
    }

    void rowsFitTheirTexts()
    {
        const auto &[name, title, detail, lines, titleLines, detailLines] = currentCase<Subtitle>();
        auto table = make<SubtitleTable>(31000);
        table->title = title;
        table->detail = detail;
        table->lines = lines;
        show(table);
        QVERIFY2(SampleCell::living < 80, "rows are made before they are seen");
        const QQuickItem *upper = WindowDriver::named(item(1), u"textLabel"_s);
        const QQuickItem *lower = WindowDriver::named(item(1), u"detailTextLabel"_s);
        QCOMPARE(upper->property("lineCount").toInt(), titleLines);
        QCOMPARE(lower->height() > 0 ? lower->property("lineCount").toInt() : 0, detailLines);
        const double texts = upper->height() + (detail.isEmpty() ? 0 : 3) + lower->height();
        QCOMPARE(item(1)->height(), qMax(44.0, texts + 2 * 11));
        const QPointF place = upper->mapToItem(item(1), {});
        QCOMPARE(place, QPointF(16, std::floor((item(1)->height() - texts) / 2)));
        for (const QQuickItem *label : {upper, lower}) {
            QCOMPARE(label->width(), 390 - 2 * 16);
            QVERIFY(label->property("contentWidth").toDouble() <= label->width());
        }
        const QString said = accessible(1)->text(QAccessible::Name);
        QCOMPARE(said, detail.isEmpty() ? title : title + u", "_s + detail);
        m_fixture->application.traits().setOverride(UIAppearance{.textScale = 1.5});
        for (const QQuickItem *label : {upper, lower})
            QVERIFY2(!label->property("truncated").toBool(), "enlarged text is cut");
    }

    void aTapChoosesOnce()
    {
        const std::function<void()> ways[] = {
            [this] { m_fixture->tap(second()); },
            [this] {
                m_fixture->tap(second());
                m_table->chosen.clear();
                m_fixture->tap(second()); // so soon that it makes a double tap
            },
            [this] { QTest::mouseClick(window(), Qt::LeftButton, {}, second()); },
            [this] {
                keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
            },
            [this] {
                keys({Qt::Key_End, Qt::Key_Up, Qt::Key_Home, Qt::Key_Down, Qt::Key_Space});
            },
            [this] { accessible(2)->actionInterface()->doAction(press); },
        };
        for (const auto &choose : ways) {
            show({2, 2});
            // From its own action.
            m_table->whenChosen = [&] { m_table->tableView()->reloadData(); };
            choose();
            QCOMPARE(m_table->chosen, (std::vector<NSIndexPath>{{0, 1}}));
        }
    }

    void aPressedRowIsHighlightedUntilTheFingerLeaves()
    {
        show({3});
        QQuickItem *selection = WindowDriver::named(item(2), u"selection"_s);
        QTest::mousePress(window(), Qt::LeftButton, {}, second());
        QCOMPARE(selection->opacity(), 1);
        QTest::mouseMove(window(), second() + QPoint(0, 100));
        QTest::mouseRelease(window(), Qt::LeftButton, {}, second() + QPoint(0, 100));
        QTRY_COMPARE(selection->opacity(), 0);
        QVERIFY(m_table->chosen.empty());
    }

    void rowsSayNameAndPosition()
    {
        show({2, 2});
        QAccessibleInterface *row = accessible(5);
        QCOMPARE(row->role(), QAccessible::ListItem);
        QCOMPARE(row->text(QAccessible::Name), u"Row 1.0"_s);
        QCOMPARE(row->text(QAccessible::Description), u"1 of 2"_s);
        QCOMPARE(row->parent()->role(), QAccessible::List);
        QCOMPARE(row->childCount(), 0); // its label is not said twice
        QCOMPARE(row->parent()->childCount(), 4 + 2); // and the two texts
    }

    void scrollingReusesCells()
    {
        show({100000});
        QVERIFY(SampleCell::living < 40);
        for (int i = 0; i < 50; ++i) {
            list()->setProperty("contentY", 300.0 * i);
            m_fixture->grab();
        }
        QVERIFY(SampleCell::living < 80);
        keys({Qt::Key_End});
        QCOMPARE(cell(100000)->textLabel()->text(), u"Row 0.99999"_s);
        keys({Qt::Key_PageUp, Qt::Key_Return});
        QVERIFY(m_table->chosen.at(0).row > 99950 && m_table->chosen.at(0).row < 99990);
        QTRY_VERIFY(SampleCell::living < 80);
    }

    // Whatever comes into sight or leaves it meanwhile.
    void aPulledTableFollowsTheFinger()
    {
        for (const bool atEnd : {false, true}) {
            show(make<UnevenTable>(2000));
            if (atEnd)
                keys({Qt::Key_End});
            m_fixture->grab();
            QQuickItem *row = item(atEnd ? 1999 : 1);
            const double rest = WindowDriver::rect(row).y();
            const int way = atEnd ? -1 : 1;
            WindowDriver::Finger finger(*window(), {200, atEnd ? 700 : 150});
            double before = 0;
            for (int step = 1; step < 12; ++step) {
                finger.move({200, (atEnd ? 700 : 150) + way * 50 * step});
                const double pulled = way * (WindowDriver::rect(row).y() - rest);
                QVERIFY(step == 1 || qAbs(pulled - before - 25) < 10); // half as far
                before = pulled;
            }
            finger.lift();
            QTRY_COMPARE(WindowDriver::rect(row).y(), rest);
        }
    }

    void aReloadKeepsThePlace()
    {
        for (const int rows : {100, 200, 3, 0}) {
            show({100});
            list()->setProperty("contentY", 1000);
            const double place = item(25)->y() - offset();
            m_table->rows = {rows};
            m_table->tableView()->reloadData();
            m_fixture->grab();
            const double expected = rows < 100 ? item(0)->y() : item(25)->y() - place;
            QTRY_COMPARE(offset(), expected);
            for (int i = 1; i <= rows && item(i); ++i)
                QVERIFY(cell(i)->preparations > 0);
            QVERIFY(SampleCell::living < 80);
        }
    }

    // In the order in which a stack lets go of a controller.
    void aTableGoesTogetherWithItsController()
    {
        show({50, 50});
        m_fixture->window.rootObject()->deleteLater();
        m_table.reset();
        QTRY_COMPARE(SampleCell::living, 0);
    }

private:
    /// Another table in another window.
    void show(std::vector<int> rows) { show(make<SampleTable>(std::move(rows))); }
    void show(const std::shared_ptr<SampleTable> &table)
    {
        cleanup();
        m_fixture = std::make_unique<QmlFixture>();
        m_table = table;
        const auto controller = QVariant::fromValue(m_table.get());
        QVERIFY(
            m_fixture->show(u"UITableViewControllerView.qml"_s, {{u"controller"_s, controller}}));
        m_fixture->grab();
    }

    [[nodiscard]] QQuickWindow *window() const { return &m_fixture->window; }
    [[nodiscard]] QQuickItem *list() const
    {
        return WindowDriver::named(m_fixture->window.rootObject(), u"list"_s);
    }
    [[nodiscard]] double offset() const { return list()->property("contentY").toDouble(); }
    [[nodiscard]] QQuickItem *item(int entry) const
    {
        QQuickItem *found = nullptr;
        QMetaObject::invokeMethod(list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found),
                                  Q_ARG(int, entry));
        return found;
    }
    [[nodiscard]] SampleCell *cell(int entry) const
    {
        return static_cast<SampleCell *>(item(entry)->property("cell").value<UITableViewCell *>());
    }
    [[nodiscard]] QQuickItem *separator(int entry) const
    {
        return WindowDriver::named(item(entry), u"separator"_s);
    }
    [[nodiscard]] QPoint second() const { return WindowDriver::centre(item(2)); }
    [[nodiscard]] QAccessibleInterface *accessible(int entry) const
    {
        return QAccessible::queryAccessibleInterface(item(entry)->childItems().constFirst());
    }
    void keys(const QList<Qt::Key> &keys) const
    {
        for (const Qt::Key key : keys)
            QTest::keyClick(window(), key);
    }

    std::unique_ptr<QmlFixture> m_fixture;
    std::shared_ptr<SampleTable> m_table;
};

WZT_TEST(TableDrawingTest)
#include "TableDrawingTest.moc"
