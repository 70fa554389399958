// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "sandbox/DemoIssues.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
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
        app.launchSignedIn();
        window.emplace(app, QSize(390, 844), DesktopAppearance{.reduceMotion = true});
        window->settle();
    }

    TestApp app;
    std::optional<TestWindow> window;
};

// A person's way to choose what is named so.
using Manner = std::tuple<const char *, void (*)(TestWindow &, const QString &)>;

void touch(TestWindow &window, const QString &name)
{
    window.tap(name);
}

void keys(TestWindow &window, const QString &name)
{
    const QAccessibleInterface &wanted = *window.accessible(name);
    if (wanted.role() == QAccessible::ListItem) {
        const QString position = wanted.text(QAccessible::Description); // "2 of 6"
        for (int i = 0; i < position.section(u' ', 0, 0).toInt(); ++i) {
            window.key(Qt::Key_Down);
        }
        window.key(Qt::Key_Return);
    } else {
        for (int i = 0; i < 8 && window.view().activeFocusItem() != wanted.object(); ++i) {
            window.key(Qt::Key_Tab);
        }
        window.key(Qt::Key_Space);
    }
}

} // namespace

/// The way from Home to a project's issues, to a new one and back, as it is drawn.
class IssuesDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anIssueIsReported_data() { addCases<Manner>({{"touch", touch}, {"keyboard", keys}}); }

    void anIssueIsReported()
    {
        const auto choose = std::get<1>(currentCase<Manner>());
        Stage stage;
        TestWindow &window = *stage.window;
        const auto go = [&](const QString &to) {
            choose(window, to);
            window.settle();
        };
        const auto showsAll = [&](const QList<sandbox::Issue> &issues) {
            return std::ranges::all_of(issues, [&](const sandbox::Issue &issue) {
                const QStringList texts{issue.title, *issue.description};
                const QString position =
                    u"%1 of %2"_s.arg(issues.indexOf(issue) + 1).arg(issues.size());
                const auto *row = window.accessible(texts.join(u", "_s));
                return row && row->text(QAccessible::Description) == position;
            });
        };
        const auto filed = [&] { return stage.app.service().issues(u"example.wzt.itsmarrow"_s); };
        QVERIFY(stage.app.service().addIssues(sandbox::demoIssues()));
        go(u"Bug Reporter"_s);
        go(u"Marrow!"_s);
        QVERIFY2(!window.accessible(u"Pintle"_s), "what is covered is read out");
        QTRY_VERIFY(showsAll(filed()));

        go(u"Add"_s);
        window.type(u"It crashes"_s);
        window.key(Qt::Key_Return);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(&window.view(), &held); // writes no line
        window.type(u"Every\rtime"_s);
        window.key(Qt::Key_Escape); // loses nothing
        go(u"Submit"_s);
        QTRY_VERIFY(window.accessible(u"Submission Success"_s));
        QVERIFY(!stage.app.application().firstResponder());
        window.settle();
        QVERIFY2(!window.accessible(u"Submit"_s), "what an alert blocks is read out");
        go(u"Dismiss"_s);
        QCOMPARE(filed().size(), 4);
        QCOMPARE(filed()[0].title, u"It crashes"_s);
        QCOMPARE(filed()[0].description, u"Every\ntime"_s);
        QTRY_VERIFY(showsAll(filed()));
        go(u"Cancel"_s);
        go(u"Back to Home"_s);
        QVERIFY(window.accessible(u"Bug Reporter"_s));
    }

    void aDoubleTapGoesOneScreenFurther()
    {
        Stage stage;
        QQuickView &view = stage.window->view();
        const QRect row = stage.window->accessible(u"Bug Reporter"_s)->rect();
        for (int i = 0; i < 2; ++i) { // where a project is going to be
            WindowDriver::tap(view, view.mapFromGlobal(row.center()));
        }
        stage.window->settle();
        QVERIFY(stage.window->accessible(u"Projects"_s));
    }

    void aSwipeBackChoosesAndScrollsNothing()
    {
        Stage stage;
        stage.app.delegate().rootVC()->showIssueProjectList();
        stage.window->settle();
        const QPoint centre = stage.window->accessible(u"Marrow!"_s)->rect().center();
        const QPoint row(10, stage.window->view().mapFromGlobal(centre).y());
        WindowDriver::Finger finger(stage.window->view(), row);
        finger.move(row + QPoint(300, 60));
        QCOMPARE(WindowDriver::items(stage.window->view(), u"QQuickListView"_s)
                     .last()
                     ->property("contentY"),
                 0.0);
        finger.lift();
        stage.window->settle();
        QVERIFY(stage.window->accessible(u"Bug Reporter"_s));
        QVERIFY(!stage.window->accessible(u"Marrow! Issues"_s));
    }

    void theSpinnerIsOverTheMiddle()
    {
        Stage stage;
        QVERIFY2(!WindowDriver::named(stage.window->view(), u"indicator"_s)->isVisible(), "Home");
        stage.app.service().stage("/issues.php", sandbox::Fault::silence());
        auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front());
        stage.app.delegate().rootVC()->showViewController(issues);
        stage.window->settle();
        const QQuickItem *spinner = stage.window->drawing(issues->activityIndicator());
        const QQuickItem *table = stage.window->drawing(issues->tableView());
        QVERIFY(spinner->isVisible());
        QCOMPARE(WindowDriver::centre(spinner), WindowDriver::centre(table));
        QCOMPARE(table->childItems().last(), spinner); // nothing is drawn over it
        QVERIFY(stage.window->accessible(u"Loading"_s));
    }
};

WZT_TEST(IssuesDrawingTest)
#include "IssuesDrawingTest.moc"
