// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "sandbox/DemoIssues.h"
#include "screens/WZTPackageIssuesViewController.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/Cases.h"
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
        window.emplace(app, QSize(390, 844), UIAppearance{.reduceMotion = true});
        window->settle();
    }

    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }
    TestApp app;
    std::optional<TestWindow> window;
};

// A person's way to choose what is named so, or, by keyboard, what comes next.
using Manner = std::tuple<const char *, void (*)(Stage &, QAccessibleInterface *, Qt::Key)>;

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
    /// The titles of those that are alive.
    [[nodiscard]] QStringList living() const
    {
        QStringList titles;
        for (const auto &cell : made) {
            if (const auto alive = cell.lock())
                titles.append(alive->textLabel()->text());
        }
        return titles;
    }
};

} // namespace

/// The way from Home to a project's issues and back, as it is drawn, touched and read out.
class IssuesDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromHomeToTheIssuesAndBack_data()
    {
        addCases<Manner>({
            {"touch",
             [](Stage &stage, QAccessibleInterface *named, Qt::Key) {
                 QQuickView &view = stage.window->view();
                 WindowDriver::tap(view, view.mapFromGlobal(named->rect().center()));
             }},
            {"keyboard",
             [](Stage &stage, QAccessibleInterface *, Qt::Key key) {
                 if (key == Qt::Key_Return)
                     stage.window->key(Qt::Key_Down);
                 stage.window->key(key);
             }},
            {"screen reader",
             [](Stage &, QAccessibleInterface *named, Qt::Key) {
                 named->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
             }},
        });
    }

    void fromHomeToTheIssuesAndBack()
    {
        const auto &[name, choose] = currentCase<Manner>();
        Stage stage;
        QVERIFY(stage.app.service().addIssues(sandbox::demoIssues()));
        const auto go = [&](const QString &to, Qt::Key key) {
            choose(stage, stage.accessible(to), key);
            stage.window->settle();
        };
        go(u"Bug Reporter"_s, Qt::Key_Return);
        QCOMPARE(stage.accessible(u"Marrow!"_s)->text(QAccessible::Description), u"2 of 6"_s);
        stage.window->key(Qt::Key_Down);
        go(u"Marrow!"_s, Qt::Key_Return);
        QVERIFY(stage.accessible(u"Marrow! Issues"_s));
        QVERIFY2(!stage.accessible(u"Pintle"_s), "what is covered is read out");
        const auto issues = stage.app.service().issues(u"example.wzt.itsmarrow"_s);
        for (int i = 0; i < issues.size(); ++i) {
            const QString row = QStringList{issues[i].title, *issues[i].description}.join(u", "_s);
            QTRY_VERIFY2(stage.accessible(row), qPrintable(row));
            const QString position = stage.accessible(row)->text(QAccessible::Description);
            QCOMPARE(position, u"%1 of 3"_s.arg(i + 1));
        }
        go(u"Cancel"_s, Qt::Key_Escape);
        QVERIFY(stage.accessible(u"Pintle"_s));
        go(u"Home"_s, Qt::Key_Escape);
        QVERIFY(stage.accessible(u"Bug Reporter"_s));
    }

    void aDoubleTapGoesOneScreenFurther()
    {
        Stage stage;
        QQuickView &view = stage.window->view();
        const QPoint row = view.mapFromGlobal(stage.accessible(u"Bug Reporter"_s)->rect().center());
        WindowDriver::tap(view, row);
        WindowDriver::tap(view, row); // where a project is going to be
        stage.window->settle();
        QVERIFY(stage.accessible(u"Projects"_s));
    }

    void aSwipeBackChoosesAndScrollsNothing()
    {
        Stage stage;
        stage.window->key(Qt::Key_Down);
        stage.window->key(Qt::Key_Return);
        stage.window->settle();
        const QPoint centre = stage.accessible(u"Marrow!"_s)->rect().center();
        const QPoint row(10, stage.window->view().mapFromGlobal(centre).y());
        WindowDriver::Finger finger(stage.window->view(), row);
        finger.move(row + QPoint(300, 60));
        QCOMPARE(WindowDriver::items(stage.window->view(), u"QQuickListView"_s)
                     .last()
                     ->property("contentY"),
                 0.0);
        finger.lift();
        stage.window->settle();
        QVERIFY(stage.accessible(u"Bug Reporter"_s));
        QVERIFY(!stage.accessible(u"Marrow! Issues"_s));
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

    // As many as fit a reply.
    void rowsAreMadeAsTheyAreSeen()
    {
        constexpr int count = 31000;
        const QByteArray words = QByteArray("word ").repeated(80);
        QByteArray reply = "[";
        for (int i = 0; i < count; ++i) {
            const QByteArray description = words.first(i * 37 % 400);
            reply += "{\"title\":\"" + QByteArray::number(i) + "\",\"description\":\"" + description
                + "\"},";
        }
        reply.back() = ']';
        Stage stage;
        stage.app.service().stage("/issues.php", sandbox::Fault::json(reply));
        auto screen = make<CountedIssues>(WZTPackage::allPackages().front());
        stage.app.delegate().rootVC()->showViewController(screen);
        QTRY_COMPARE(screen->numberOfRowsInSection(0), count);
        stage.window->view().grabWindow();
        QVERIFY2(screen->made.size() > 5 && screen->made.size() < 100, "made before they are seen");
        for (int i = 0; i < 20; ++i)
            stage.window->key(Qt::Key_PageDown);
        stage.window->key(Qt::Key_End);
        stage.window->view().grabWindow();
        QVERIFY(screen->living().contains(QString::number(count - 1)));
        QVERIFY(screen->made.size() < 1000);
        QTRY_VERIFY(screen->living().size() < 150); // with those that could be reused
    }
};

WZT_TEST(IssuesDrawingTest)
#include "IssuesDrawingTest.moc"
