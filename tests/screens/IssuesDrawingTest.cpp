// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "sandbox/DemoIssues.h"
#include "screens/WZTPackageIssuesViewController.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Home, in a real window.
struct Stage {
    Stage()
    {
        app.keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        app.launch();
        window.emplace(app);
        window->settle();
    }

    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }
    void keys(const QList<Qt::Key> &keys)
    {
        for (const Qt::Key key : keys)
            window->key(key);
    }
    /// How many rows of the topmost screen are drawn.
    [[nodiscard]] qsizetype rows()
    {
        return WindowDriver::items(window->view(), u"UITableViewRowView"_s).size();
    }

    TestApp app;
    std::optional<TestWindow> window;
};

// Does to what is named so what a person does, where nothing but `keys` are at hand with those.
using Manner = std::function<void(Stage &stage, const QString &name, const QList<Qt::Key> &keys)>;

/// Remembers the cells that it made.
class CountedIssues : public WZTPackageIssuesViewController {
public:
    using WZTPackageIssuesViewController::WZTPackageIssuesViewController;
    std::vector<std::weak_ptr<UITableViewCell>> made;

    std::shared_ptr<UITableViewCell> cellForRowAtIndexPath(const NSIndexPath &at) override
    {
        auto cell = WZTPackageIssuesViewController::cellForRowAtIndexPath(at);
        made.push_back(cell);
        return cell;
    }
    [[nodiscard]] qsizetype living() const
    {
        return std::count_if(made.begin(), made.end(),
                             [](const auto &cell) { return !cell.expired(); });
    }
};

} // namespace

/// The way from Home to a project's issues and back, as it is drawn, touched and read out.
class IssuesDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromHomeToTheIssuesAndBack_data()
    {
        QTest::addColumn<Manner>("choose");
        QTest::newRow("touch") << Manner([](Stage &stage, const QString &name, const auto &) {
            QQuickView &view = stage.window->view();
            const QPoint centre = stage.accessible(name)->rect().center();
            WindowDriver::tap(view, view.mapFromGlobal(centre));
        });
        QTest::newRow("keyboard") << Manner(
            [](Stage &stage, const QString &, const auto &keys) { stage.keys(keys); });
        QTest::newRow("screen reader")
            << Manner([](Stage &stage, const QString &name, const auto &) {
                   stage.accessible(name)->actionInterface()->doAction(
                       QAccessibleActionInterface::pressAction());
               });
    }

    void fromHomeToTheIssuesAndBack()
    {
        QFETCH(const Manner, choose);
        Stage stage;
        QVERIFY(stage.app.service().addIssues(sandbox::demoIssues()));
        choose(stage, u"Bug Reporter"_s, {Qt::Key_Down, Qt::Key_Return});
        stage.window->settle();
        QAccessibleInterface *row = stage.accessible(u"Marrow!"_s);
        QVERIFY(row);
        QCOMPARE(row->role(), QAccessible::ListItem);
        QCOMPARE(row->text(QAccessible::Description), u"2 of 6"_s);

        choose(stage, u"Marrow!"_s, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        stage.window->settle();
        QVERIFY(stage.accessible(u"Marrow! Issues"_s));
        const auto issues = stage.app.service().issues(u"example.wzt.itsmarrow"_s);
        for (int i = 0; i < issues.size(); ++i) {
            const QString name = QStringList{issues[i].title, *issues[i].description}.join(u", "_s);
            QTRY_VERIFY2(stage.accessible(name), qPrintable(name));
            QCOMPARE(stage.accessible(name)->text(QAccessible::Description),
                     u"%1 of 3"_s.arg(i + 1));
        }
        QVERIFY2(!stage.accessible(u"Pintle"_s), "what is covered is read out");

        choose(stage, u"Cancel"_s, {Qt::Key_Escape});
        stage.window->settle();
        QVERIFY(stage.accessible(u"Pintle"_s));
        choose(stage, u"Home"_s, {Qt::Key_Escape});
        stage.window->settle();
        QVERIFY(stage.accessible(u"Bug Reporter"_s));
    }

    void theSpinnerIsOverTheMiddle()
    {
        Stage stage;
        QVERIFY2(!WindowDriver::named(stage.window->view(), u"indicator"_s)->isVisible(), "Home");
        stage.app.service().stage("/issues.php", sandbox::Fault::silence());
        auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front());
        stage.app.delegate().rootVC()->showViewController(issues);
        stage.window->settle();
        const QQuickItem *spinner =
            WindowDriver::drawing(stage.window->view(), issues->activityIndicator());
        const QQuickItem *table = WindowDriver::drawing(stage.window->view(), issues->tableView());
        QVERIFY(spinner->isVisible());
        QCOMPARE(WindowDriver::centre(spinner), WindowDriver::centre(table));
        QCOMPARE(table->childItems().last(), spinner); // nothing is drawn over it
        QVERIFY(stage.accessible(u"Loading"_s));
    }

    void rowsAreMadeAsTheyAreSeen_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("many") << 2000;
        QTest::newRow("as many as fit a reply") << 31000;
    }

    void rowsAreMadeAsTheyAreSeen()
    {
        QFETCH(const int, count);
        const QByteArray description = QByteArray("word ").repeated(80);
        QByteArrayList issues;
        for (int i = 0; i < count; ++i) {
            issues.append(R"({"title":"Issue )" + QByteArray::number(i) + R"(","description":")"
                          + description.first(i * 37 % 400) + R"("})");
        }
        Stage stage;
        stage.app.service().stage("/issues.php",
                                  sandbox::Fault::json('[' + issues.join(',') + ']'));
        auto screen = make<CountedIssues>(WZTPackage::allPackages().front());
        stage.app.delegate().rootVC()->presentViewController(make<UINavigationController>(screen),
                                                             true);
        stage.window->settle();
        QTRY_COMPARE(screen->numberOfRowsInSection(0), count);
        QTRY_VERIFY(stage.rows() > 5);
        QVERIFY2(screen->made.size() < 60, "rows are made before they are seen");
        for (int i = 0; i < 20; ++i)
            stage.keys({Qt::Key_PageDown});
        stage.keys({Qt::Key_End});
        stage.window->view().grabWindow();
        QVERIFY(screen->made.size() < 600);
        const auto last = screen->made.back();
        QTRY_VERIFY(screen->living() < 120);
        QTRY_VERIFY(
            stage.accessible(u"Issue %1, "_s.arg(count - 1)
                             + QString::fromLatin1(description.first((count - 1) * 37 % 400))));
    }
};

WZT_TEST(IssuesDrawingTest)
#include "IssuesDrawingTest.moc"
