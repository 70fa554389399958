// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "screens/issues/WZTRootIssueViewController.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using sandbox::Fault;

constexpr char path[] = "/issues.php";

Fault listOf(const QByteArrayList &titles)
{
    QByteArrayList issues;
    for (const QByteArray &title : titles) {
        issues.append(R"({"title":")" + title + R"("})");
    }
    return Fault::json('[' + issues.join(',') + ']');
}

// The projects are listed, and the service answers as staged.
struct HomeStage : TestApp {
    HomeStage()
    {
        launchSignedIn();
        delegate().rootVC()->showIssueProjectList();
    }

    [[nodiscard]] WZTRootIssueViewController &projects()
    {
        const auto *navigation = delegate().rootVC()->navigationController();
        return dynamic_cast<WZTRootIssueViewController &>(*navigation->topViewController());
    }
    [[nodiscard]] WZTPackageIssuesViewController &open(int project)
    {
        projects().tableView()->activateRow({0, project});
        return dynamic_cast<WZTPackageIssuesViewController &>(
            *top<UINavigationController>()->topViewController());
    }
    /// Covers the top screen and uncovers it, so that it appears once more.
    void coverAndUncover()
    {
        top()->presentViewController(make<UIViewController>(), false);
        top()->dismissViewControllerAnimated(false);
    }
    [[nodiscard]] qsizetype requests() { return service().requests().size(); }
};

QStringList titles(const WZTPackageIssuesViewController *screen)
{
    QStringList titles;
    const auto issues = screen ? screen->packageIssues() : std::nullopt;
    for (const WZTPackageIssue &issue : issues.value_or(QList<WZTPackageIssue>())) {
        titles.append(issue.title.value_or(u"-"_s));
    }
    return titles;
}

} // namespace

/// Home's links, the list of projects and a project's issues, from a touch to the service and back.
class HomeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsAndTheirLinks()
    {
        HomeStage stage;
        TestApp &app = stage;
        WZTRootViewController &home = *app.delegate().rootVC();
        home.loadViewIfNeeded();
        QStringList images;
        for (const NSIndexPath &row : {NSIndexPath{0, 0}, {1, 0}, {1, 1}, {1, 2}}) {
            const UIImageView *icon = home.cellForRowAtIndexPath(row)->imageView();
            QCOMPARE(icon->tintColor().toQColor(true), UIColor::systemTealColor().toQColor(true));
            images.append(icon->image().name());
        }
        QCOMPARE(images.join(u' '), u"bugreport add add discord"_s);
        QCOMPARE(home.cellForRowAtIndexPath({2, 0})->selectionStyle(),
                 UITableViewCellSelectionStyle::None);
        for (const auto &[section, footer] : {std::pair(0, 14), {1, 0}, {2, 0}}) {
            QCOMPARE(home.heightForFooterInSection(section), footer);
        }

        const QString zebra = u"zbra://sources/add/"_s;
        const QString cydia = u"cydia://url/https://share.wzt.example/api/share#?source="_s;
        const std::pair<QStringList, QString> machines[] = {
            {{u"zbra"_s, u"cydia"_s}, zebra}, {{u"cydia"_s}, cydia}, {{}, cydia}};
        for (const auto &[installed, prefix] : machines) {
            app.host().schemes = installed;
            app.host().openedURLs.clear();
            for (const NSIndexPath &row : {NSIndexPath{1, 0}, {1, 1}, {1, 2}, {2, 0}}) {
                home.tableView()->activateRow(row);
                QVERIFY(!home.tableView()->indexPathForSelectedRow());
            }
            QCOMPARE(app.host().openedURLs,
                     (QStringList{prefix + u"https://repo.wzt.example"_s,
                                  prefix + u"https://supporter.wzt.example/repo/"_s,
                                  u"https://chat.wzt.example/invite/wzt"_s}));
            QVERIFY2(app.alert().isEmpty(), "links are fire and forget");
        }
    }

    void theAddButtonOpensTheForm()
    {
        HomeStage stage;
        WZTPackageIssuesViewController &screen = stage.open(1);
        QVERIFY(!stage.projects().tableView()->indexPathForSelectedRow());
        QTRY_COMPARE(stage.requests(), 1);
        const QString address = QString::number(quintptr(screen.package().get()), 16);
        const QString line = u"Add new issue to package: <WZTPackage: 0x%1>"_s.arg(address);
        QTest::ignoreMessage(QtInfoMsg, qPrintable(line));
        screen.navigationItem()->rightBarButtonItem()->trigger();
        const auto *form = dynamic_cast<WZTIssueReporterViewController *>(
            stage.top<UINavigationController>()->topViewController());
        QCOMPARE(form->package(), screen.package());
    }

    void everyOutcomeReplacesTheList()
    {
        const std::pair<Fault, QStringList> outcomes[] = {
            {listOf({"old", "older"}), {u"old"_s, u"older"_s}},
            {Fault::json("[]"), {}},
            {listOf({"z", "a", "z"}), {u"z"_s, u"a"_s, u"z"_s}},
            {Fault::close(), {}},
        };
        HomeStage stage;
        stage.service().stage(path, Fault::close());
        WZTPackageIssuesViewController &screen = stage.open(0);
        QStringList before;
        for (const auto &[reply, shown] : outcomes) {
            QTRY_VERIFY(!screen.activityIndicator()->isAnimating());
            QCOMPARE(titles(&screen), before);
            stage.service().stage(path, reply);
            stage.coverAndUncover();
            QVERIFY(screen.activityIndicator()->isAnimating());
            QCOMPARE(titles(&screen), before); // until the reply
            QTRY_COMPARE(titles(&screen), shown);
            QCOMPARE(screen.packageIssues().has_value(), !shown.isEmpty());
            QCOMPARE(stage.alert(), QString());
            before = shown;
        }
    }

    void aRowShowsWhatItsIssueHas()
    {
        HomeStage stage;
        stage.service().stage(path, Fault::json(R"([{"title":"One","description":"More"},
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
            HomeStage stage;
            stage.service().stage(path, listOf({"first"}).after(300ms));
            const QPointer<WZTPackageIssuesViewController> screen = &stage.open(0);
            QTRY_COMPARE(stage.requests(), 1);
            stage.service().stage(path, listOf({"second"}).after(100ms));
            stage.coverAndUncover();
            if (cancelled) {
                screen->cancel(nullptr);
            }
            QTRY_COMPARE(titles(screen), QStringList{u"second"_s});
            QVERIFY(!screen->activityIndicator()->isAnimating());
            if (cancelled) {
                QTRY_VERIFY(!screen);
            } else {
                QTRY_COMPARE(titles(screen), QStringList{u"first"_s});
            }
        }
    }
};

WZT_TEST(HomeTest)
#include "HomeTest.moc"
