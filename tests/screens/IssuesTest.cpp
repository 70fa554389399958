// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "screens/WZTIssueReporterViewController.h"
#include "screens/WZTPackageIssuesViewController.h"
#include "screens/WZTRootIssueViewController.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using sandbox::Fault;

constexpr char path[] = "/issues.php";

Fault listOf(const QByteArrayList &titles)
{
    QByteArrayList issues;
    for (const QByteArray &title : titles)
        issues.append(R"({"title":")" + title + R"("})");
    return Fault::json('[' + issues.join(',') + ']');
}

// The projects are listed, and the service answers as staged.
struct Stage {
    Stage()
    {
        app.keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        app.launch();
        app.delegate().rootVC()->showIssueProjectList();
    }

    [[nodiscard]] WZTRootIssueViewController &projects()
    {
        const auto *navigation = app.delegate().rootVC()->navigationController();
        return dynamic_cast<WZTRootIssueViewController &>(*navigation->topViewController());
    }
    [[nodiscard]] WZTPackageIssuesViewController &open(int project)
    {
        projects().tableView()->chooseRowAtIndexPath({0, project});
        return dynamic_cast<WZTPackageIssuesViewController &>(
            *app.top<UINavigationController>()->topViewController());
    }
    /// Covers the top screen and uncovers it, so that it appears once more.
    void coverAndUncover()
    {
        app.top()->presentViewController(make<UIViewController>(), false);
        app.top()->dismissViewControllerAnimated(false);
    }
    [[nodiscard]] qsizetype requests() { return app.service().requests().size(); }

    TestApp app;
};

QStringList titles(const WZTPackageIssuesViewController *screen)
{
    QStringList titles;
    const auto issues = screen ? screen->packageIssues() : std::nullopt;
    for (const WZTPackageIssue &issue : issues.value_or(QList<WZTPackageIssue>()))
        titles.append(issue.title.value_or(u"-"_s));
    return titles;
}

} // namespace

/// The list of projects and a project's issues, from a touch to the service and back.
class IssuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aProjectOpensItsIssues()
    {
        Stage stage;
        WZTRootIssueViewController &projects = stage.projects();
        QStringList names;
        for (int row = 0; row < projects.numberOfRowsInSection(0); ++row)
            names.append(projects.cellForRowAtIndexPath({0, row})->textLabel()->text());
        QCOMPARE(names.join(u'|'), u"Pintle|Marrow!|QELVAN|tessaroo|Halden 3|KiteLoom"_s);
        QCOMPARE(projects.navigationItem()->title(), u"Projects"_s);
        QCOMPARE(projects.numberOfSections(), 1);

        const WZTPackageIssuesViewController &issues = stage.open(2);
        QVERIFY(!projects.tableView()->indexPathForSelectedRow());
        QCOMPARE(issues.package(), projects.packages().at(2));
        UINavigationItem &bar = *issues.navigationItem();
        QCOMPARE(bar.title(), u"QELVAN Issues"_s);
        QVERIFY(bar.rightBarButtonItem()->isSystemItem(UIBarButtonSystemItem::Add));
        QTRY_COMPARE(stage.requests(), 1);
        QCOMPARE(stage.app.service().requests()[0].method, "GET");
        QCOMPARE(stage.app.service().requests()[0].target,
                 "/issues.php?packageId=example.wzt.qelvan");

        QVERIFY(bar.leftBarButtonItem()->isSystemItem(UIBarButtonSystemItem::Cancel));
        bar.leftBarButtonItem()->trigger();
        QCOMPARE(stage.app.top(), stage.app.delegate().tabController());
        QCOMPARE(&stage.projects(), &projects);
        QCOMPARE(projects.numberOfRowsInSection(0), 6);
    }

    void theAddButtonOpensTheForm()
    {
        Stage stage;
        WZTPackageIssuesViewController &screen = stage.open(1);
        QTRY_COMPARE(stage.requests(), 1);
        const QString address = QString::number(quintptr(screen.package().get()), 16);
        const QString line = u"Add new issue to package: <WZTPackage: 0x%1>"_s.arg(address);
        QTest::ignoreMessage(QtInfoMsg, qPrintable(line));
        screen.navigationItem()->rightBarButtonItem()->trigger();
        const auto *form = stage.app.top<UINavigationController>();
        const auto *reporter =
            qobject_cast<WZTIssueReporterViewController *>(form->topViewController());
        QVERIFY(reporter);
        QCOMPARE(reporter->package(), screen.package());

        stage.app.service().stage(path, listOf({"new"}));
        stage.app.top()->dismissViewControllerAnimated(true);
        QTRY_COMPARE(titles(&screen), QStringList{u"new"_s}); // fetched as it appears again
    }

    void everyOutcomeReplacesTheList()
    {
        const std::pair<Fault, QStringList> outcomes[] = {
            {listOf({"old", "older"}), {u"old"_s, u"older"_s}},
            {Fault::json("[]"), {}},
            {listOf({"z", "a", "z"}), {u"z"_s, u"a"_s, u"z"_s}},
            {Fault::json(R"({"result":"Failure"})"), {}},
            {Fault::json(R"([{"title":"a"}])", 500), {u"a"_s}},
            {Fault::json("<html>"), {}},
            {listOf({"b"}), {u"b"_s}},
            {Fault::close(), {}},
        };
        Stage stage;
        stage.app.service().stage(path, Fault::close());
        WZTPackageIssuesViewController &screen = stage.open(0);
        QStringList before;
        for (const auto &[reply, shown] : outcomes) {
            QTRY_VERIFY(!screen.activityIndicator()->isAnimating());
            QCOMPARE(titles(&screen), before);
            stage.app.service().stage(path, reply);
            stage.coverAndUncover();
            QVERIFY(screen.activityIndicator()->isAnimating());
            QCOMPARE(titles(&screen), before); // until the reply
            QTRY_COMPARE(titles(&screen), shown);
            QCOMPARE(screen.packageIssues().has_value(), !shown.isEmpty());
            QVERIFY2(stage.app.top<UINavigationController>(), "an alert");
            before = shown;
        }
    }

    void aRowShowsWhatItsIssueHas()
    {
        Stage stage;
        stage.app.service().stage(path, Fault::json(R"([{"title":"One","description":"More"},
            {"title":"One"},{"description":"More"},{},{"title":"One","description":null}])"));
        WZTPackageIssuesViewController &screen = stage.open(0);
        QTRY_COMPARE(screen.numberOfRowsInSection(0), 5);
        const char *expected[] = {"One|More", "One|", "|More", "|", "One|"};
        for (int row = 0; row < 5; ++row) {
            const auto cell = screen.cellForRowAtIndexPath({0, row});
            QCOMPARE(cell->textLabel()->text() + u'|' + cell->detailTextLabel()->text(),
                     QLatin1String(expected[row]));
            QCOMPARE(cell->selectionStyle(), UITableViewCellSelectionStyle::None);
            QCOMPARE(cell->textLabel()->numberOfLines(), 0);
            QCOMPARE(cell->detailTextLabel()->numberOfLines(), 0);
        }
    }

    // The reply that comes last counts, whichever was asked for last, and the screen, dismissed
    // meanwhile or not, lives until then.
    void lateReplies()
    {
        for (const bool cancelled : {false, true}) {
            Stage stage;
            stage.app.service().stage(path, listOf({"first"}).after(300ms));
            const QPointer<WZTPackageIssuesViewController> screen = &stage.open(0);
            QTRY_COMPARE(stage.requests(), 1);
            stage.app.service().stage(path, listOf({"second"}).after(100ms));
            stage.coverAndUncover();
            if (cancelled)
                screen->cancel(nullptr);
            QTRY_COMPARE(titles(screen), QStringList{u"second"_s});
            QVERIFY(!screen->activityIndicator()->isAnimating());
            if (cancelled) {
                QTRY_VERIFY(!screen);
            } else {
                QTRY_COMPARE(titles(screen), QStringList{u"first"_s});
            }
        }
    }

    void backgroundByVersion()
    {
        Stage stage;
        const auto background = [](UIViewController &screen) {
            screen.loadViewIfNeeded();
            return screen.view()->backgroundColor().drawn(true);
        };
        for (const double version : {12, 13}) {
            stage.app.application().traits().setSystemVersion(version);
            const QColor expected = (version < 13 ? UIColor::colorWithRed(0.949, 0.945, 0.965, 1)
                                                  : UIColor::systemGroupedBackgroundColor())
                                        .drawn(true);
            QCOMPARE(background(*make<WZTRootViewController>()), expected);
            QCOMPARE(background(*make<WZTRootIssueViewController>()), expected);
            QCOMPARE(background(
                         *make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front())),
                     expected);
        }
    }
};

WZT_TEST(IssuesTest)
#include "IssuesTest.moc"
