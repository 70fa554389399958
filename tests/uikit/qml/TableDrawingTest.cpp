// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/SampleTable.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
#include <QTest>

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

/// What is done to a table of a hundred rows, and how often its second row is chosen then.
struct Touch {
    const char *name;
    std::function<void()> run;
    int chosen;
};

} // namespace

/// Tables in a real window.
class TableDrawingTest : public QObject {
    Q_OBJECT

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
        const double rows = 208 + 18;
        const double footer = item(9)->height();
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
            const QRectF place(item(entry)->position(), item(entry)->size());
            QCOMPARE(place, QRectF(0, y, 390, height));
        }
        QCOMPARE(WindowDriver::named(item(1), u"textLabel"_s)->mapToItem(item(1), QPointF()).x(),
                 16);
        QCOMPARE(separator(1)->x(), 16); // between rows
        QCOMPARE(separator(2)->x(), 16 + 29 + 16); // after an image
        QCOMPARE(separator(3)->x(), 0); // at the end of a section
        QCOMPARE(window().grabWindow().pixelColor(22, 102).name(), u"#ff0000"_s); // no template
        QCOMPARE(separator(1)->y() + separator(1)->height(), 44);

        m_fixture->application.traits().setOverride(DesktopAppearance{.textScale = 2});
        QTRY_VERIFY(item(1)->height() > 44);
        m_table->tableView()->setSeparatorStyle(UITableViewCellSeparatorStyle::None);
        QVERIFY(!separator(1)->isVisible());
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
        show(table);
        const QQuickItem *upper = WindowDriver::named(item(1), u"textLabel"_s);
        const QQuickItem *lower = WindowDriver::named(item(1), u"detailTextLabel"_s);
        QCOMPARE(upper->property("lineCount").toInt(), row.titleLines);
        QCOMPARE(lower->height() > 0 ? lower->property("lineCount").toInt() : 0, row.detailLines);
        const double texts = upper->height() + (row.detail.isEmpty() ? 0 : 3) + lower->height();
        QCOMPARE(item(1)->height(), qMax(44.0, texts + 2 * 11));
        QCOMPARE(upper->mapToItem(item(1), QPointF()),
                 QPointF(16, std::floor((item(1)->height() - texts) / 2)));
        for (const QQuickItem *label : {upper, lower}) {
            QCOMPARE(label->width(), 390 - 2 * 16);
            QVERIFY(label->property("contentWidth").toDouble() <= label->width());
        }
        m_fixture->application.traits().setOverride(DesktopAppearance{.textScale = 1.5});
        for (const QQuickItem *label : {upper, lower}) {
            QVERIFY2(!label->property("truncated").toBool(), "enlarged text is cut");
        }
    }

    void aRowIsChosenOnce()
    {
        const QList byLines{Qt::Key_Down, Qt::Key_Down, Qt::Key_Return};
        const QList byEnds{Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Space};
        const std::function<void()> ways[] = {
            [this] { QTest::mouseClick(&window(), Qt::LeftButton, {}, second()); },
            [&] { keys(byLines); },
            [&] { keys(byEnds); },
            [this] { accessible(2)->doAction(QAccessibleActionInterface::pressAction()); },
        };
        for (const auto &choose : ways) {
            show({2, 0, 2});
            // From its own action.
            m_table->whenChosen = [this] { m_table->tableView()->reloadData(); };
            choose();
            QCOMPARE(m_table->chosen, (std::vector<NSIndexPath>{{0, 1}}));
        }
    }

    void rowsActWhenLetGoOf_data()
    {
        using Finger = WindowDriver::Finger;
        const auto tap = [this] { WindowDriver::tap(window(), second()); };
        const auto scroll = [this] {
            Finger finger(window(), second());
            finger.move(second() - QPoint(0, 30));
            finger.lift();
        };
        const auto hold = [this](const std::function<void(Finger &)> &meanwhile) {
            Finger finger(window(), second());
            QTRY_VERIFY(cell(2)->isHighlighted());
            meanwhile(finger);
            QVERIFY(!cell(2)->isHighlighted());
            finger.lift();
        };
        const auto present = [this](const std::shared_ptr<UIViewController> &controller) {
            m_table->presentViewController(controller, true);
        };
        addCases<Touch>({
            {"a tap", tap, 1},
            {"two quick taps", [=] { tap(), tap(); }, 2},
            {"a double click",
             [this] { QTest::mouseDClick(&window(), Qt::LeftButton, {}, second()); }, 2},
            {"two quick scrolls", [=] { scroll(), scroll(); }, 0},
            {"a tap and at once a scroll", [=] { tap(), scroll(); }, 1},
            {"held, then scrolled",
             [=, this] { hold([this](Finger &finger) { finger.move(second() - QPoint(0, 30)); }); },
             0},
            {"held through a reload",
             [=, this] { hold([this](Finger &) { m_table->tableView()->reloadData(); }); }, 0},
            {"held while an alert comes",
             [=] { hold([=](Finger &) { present(make<UIAlertController>(u""_s, u""_s)); }); }, 0},
            {"two fingers on rows that present",
             [=, this] {
                 m_table->whenChosen = [present] { present(make<TestPage>()); };
                 auto fingers = QTest::touchEvent(&window(), WindowDriver::screen(), false);
                 const QPoint other = WindowDriver::centre(item(4));
                 fingers.press(0, second()).press(1, other).commit();
                 fingers.release(0, second()).release(1, other).commit();
             },
             1},
        });
    }

    void rowsActWhenLetGoOf()
    {
        const Touch &touch = currentCase<Touch>();
        show({100});
        touch.run();
        QCOMPARE(m_table->chosen,
                 std::vector<NSIndexPath>(static_cast<std::size_t>(touch.chosen), {0, 1}));
    }

    void aPressedRowAndTheChosenOneAreMarked()
    {
        show({100});
        const auto marked = [this] {
            QList<int> entries;
            for (const int entry : {1, 2, 3}) {
                if (WindowDriver::named(item(entry), u"selection"_s)->opacity() > 0) {
                    entries.append(entry);
                }
            }
            return entries;
        };
        const QPointF at = second();
        QMouseEvent press(QEvent::MouseButtonPress, at, window().mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &press);
        QVERIFY2(marked().isEmpty(), "it may be a scroll that begins");
        QTRY_COMPARE(marked(), QList{2});
        QTest::mouseMove(&window(), second() + QPoint(0, 100));
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, second() + QPoint(0, 100));
        QTRY_VERIFY(marked().isEmpty());
        QVERIFY(m_table->chosen.empty());
        for (const int entry : {1, 2}) {
            m_table->tableView()->activateEntry(entry);
        }
        m_table->tableView()->deselectRowAtIndexPath({0, 0}, true); // which is not any more
        for (const double offset : {3000, 0}) { // out of sight and back
            list()->setProperty("contentY", offset);
            window().grabWindow();
        }
        QCOMPARE(marked(), QList{2});
        m_table->tableView()->deselectRowAtIndexPath({0, 1}, true);
        QTRY_VERIFY(marked().isEmpty());
    }

    void cellsDoNotPileUp()
    {
        for (const bool anew : {true, false}) {
            const auto table = make<SampleTable>(std::vector{100000});
            if (anew) { // which nobody asks for again
                table->makeRow = [] { return make<SampleCell>(UITableViewCellStyle{}, u"anew"_s); };
            }
            show(table);
            QVERIFY2(SampleCell::living < 40, "rows are made before they are seen");
            for (int page = 0; page < 20; ++page) {
                keys({Qt::Key_PageDown});
            }
            QTRY_VERIFY(SampleCell::living < (anew ? 60 : 80));
        }
        keys({Qt::Key_End});
        QCOMPARE(cell(100000)->textLabel()->text(), u"Row 0.99999"_s);
        keys({Qt::Key_PageUp, Qt::Key_Return});
        QVERIFY(m_table->chosen.at(0).row > 99950 && m_table->chosen.at(0).row < 99990);
    }

    void aHighRowIsReadByKeyToItsEnd()
    {
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_PageUp}) {
            auto table = make<SampleTable>(std::vector{4});
            table->height = [](const NSIndexPath &at) { return at.row % 2 == 1 ? 3000 : 44; };
            show(table);
            const bool down = key == Qt::Key_Down || key == Qt::Key_PageDown;
            keys({down ? Qt::Key_Home : Qt::Key_End});
            for (int presses = 0; presses < 90; ++presses) {
                const QPointer row = list()->property("currentItem").value<QQuickItem *>();
                const double before = WindowDriver::rect(row).y();
                keys({key});
                QVERIFY(!row || qAbs(WindowDriver::rect(row).y() - before) <= window().height());
            }
            QCOMPARE(list()->property("currentIndex").toInt(), down ? 4 : 1);
            const QRectF row = WindowDriver::rect(item(down ? 4 : 1));
            QVERIFY(down ? row.bottom() <= window().height() : row.top() >= 0);
        }
    }

    // Whatever comes into sight or leaves it meanwhile.
    void aPulledTableFollowsTheFinger()
    {
        for (const bool atEnd : {false, true}) {
            auto table = make<SampleTable>(std::vector{2000});
            table->height = [](const NSIndexPath &at) { // low at both ends
                return at.row < 12 || at.row > 1988 ? 44 : 44 + at.row * 37 % 200;
            };
            show(table);
            if (atEnd) {
                keys({Qt::Key_End});
            }
            window().grabWindow();
            const QQuickItem *row = item(atEnd ? 1999 : 1);
            const double rest = WindowDriver::rect(row).y();
            const int way = atEnd ? -1 : 1;
            WindowDriver::Finger finger(window(), {200, atEnd ? 700 : 150});
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
        for (const auto &[before, after] : {std::pair(100, 100), {100, 200}, {100, 3}, {100, 0}}) {
            show({before});
            const int living = SampleCell::living;
            reload({before});
            QVERIFY2(SampleCell::living == living, "others are made before these are handed back");
            list()->setProperty("contentY", 1000);
            reload({after});
            QTRY_COMPARE(offset(), after < 100 ? item(0)->y() : 1000);
            for (int i = 1; i <= after && item(i); ++i) {
                QVERIFY(cell(i)->preparations > 0);
            }
            QVERIFY(SampleCell::living < 80);
        }
    }

    /// As screen readers and Tab take them.
    void rowsStandInTheirOrder()
    {
        show(std::vector{0, 2});
        for (const int rows : {30, 5, 300, 100, 0, 40}) {
            reload({rows, 2});
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp}) {
                keys({key});
                window().grabWindow();
                everyRowSaysItsText();
                QList<int> entries = madeEntries();
                std::ranges::sort(entries);
                QVERIFY(entries.size() > rows % 100);
                QCOMPARE(madeEntries(), entries);
            }
        }
    }

    void aReloadLeavesTheFingerAlone()
    {
        show({2000});
        list()->setProperty("contentY", 2000);
        WindowDriver::Finger finger(window(), {200, 700});
        finger.move({200, 400});
        const double before = offset();
        QVERIFY(before > 2200);
        reload({1990});
        QCOMPARE(offset(), before);
        finger.move({200, 300});
        QVERIFY2(qAbs(offset() - before - 100) < 25, "the finger has lost it");
        finger.lift();
        QVERIFY(list()->property("flicking").toBool());
        m_table->tableView()->reloadData();
        window().grabWindow();
        QVERIFY2(list()->property("flicking").toBool(), "it stops");
        QVERIFY(offset() >= before + 100);
    }

    void aReloadLeavesTheKeyboardWithItsRow()
    {
        show({20, 30}); // so short that all are made
        keys({Qt::Key_Home, Qt::Key_Down});
        const QPointer<QQuickItem> label = WindowDriver::named(item(2), u"textLabel"_s);
        reload({50, 2000});
        QVERIFY2(SampleCell::living < 80, "all of a long one are made");
        keys({Qt::Key_Return});
        QVERIFY2(label, "a screen reader loses its place");
        keys({Qt::Key_End, Qt::Key_Return});
        reload({3, 2});
        keys({Qt::Key_End, Qt::Key_Return});
        QCOMPARE(m_table->chosen, (std::vector<NSIndexPath>{{0, 1}, {1, 1999}, {1, 1}}));
    }

private:
    /// Another table in another window.
    void show(std::vector<int> rows) { show(make<SampleTable>(std::move(rows))); }
    void show(const std::shared_ptr<SampleTable> &table)
    {
        cleanup();
        m_fixture = std::make_unique<WindowFixture>();
        m_table = table;
        m_fixture->show(table);
        window().grabWindow();
    }

    /// Fetches other rows, until the drawings of those that went are gone.
    void reload(std::vector<int> rows)
    {
        m_table->rows = std::move(rows);
        m_table->word += u'!';
        m_table->tableView()->reloadData();
        window().grabWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window().grabWindow();
        everyRowSaysItsText();
    }
    void everyRowSaysItsText() const
    {
        for (const int entry : madeEntries()) {
            const auto at = m_table->tableView()->entries()->indexPathOf(entry);
            QQuickItem *row = item(entry); // none for the current row when it is out of sight
            if (at && row) {
                QCOMPARE(WindowDriver::named(row, u"textLabel"_s)->property("text").toString(),
                         m_table->text(*at));
            }
        }
    }

    [[nodiscard]] QQuickView &window() const { return m_fixture->host->view(); }
    [[nodiscard]] QQuickItem *list() const { return m_fixture->named(u"list"_s); }
    [[nodiscard]] double offset() const { return list()->property("contentY").toDouble(); }
    /// The entries that are drawn, in the order of their drawings.
    [[nodiscard]] QList<int> madeEntries() const
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
    [[nodiscard]] QAccessibleActionInterface *accessible(int entry) const
    {
        return QAccessible::queryAccessibleInterface(item(entry)->childItems().constLast())
            ->actionInterface();
    }
    void keys(const QList<Qt::Key> &keys) const
    {
        for (const Qt::Key key : keys) {
            m_fixture->key(key);
        }
    }

    std::unique_ptr<WindowFixture> m_fixture;
    std::shared_ptr<SampleTable> m_table;
};

WZT_TEST(TableDrawingTest)
#include "TableDrawingTest.moc"
