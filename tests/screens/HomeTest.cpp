// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "screens/WZTRootIssueViewController.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Somebody is signed in and looks at Home.
struct Stage {
    Stage()
    {
        app.keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        app.launch();
        screen().loadViewIfNeeded();
    }

    [[nodiscard]] WZTRootViewController &screen() { return *app.delegate().rootVC(); }
    void tap(const NSIndexPath &row) { screen().tableView()->chooseRowAtIndexPath(row); }

    TestApp app;
};

} // namespace

/// Home's menu, without a window.
class HomeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rows()
    {
        Stage stage;
        WZTRootViewController &home = stage.screen();
        const struct {
            NSIndexPath place;
            const char16_t *image;
            const char16_t *text;
        } rows[] = {
            {{0, 0}, u"bugreport", u"Bug Reporter"},
            {{1, 0}, u"add", u"Add Public Repo"},
            {{1, 1}, u"add", u"Add Supporter Repo"},
            {{1, 2}, u"discord", u"Join Discord"},
            {{2, 0}, u"", u""},
        };
        QCOMPARE(home.navigationItem()->title(), u"Home"_s);
        for (const auto &row : rows) {
            const auto cell = home.cellForRowAtIndexPath(row.place);
            QCOMPARE(cell->textLabel()->text(), QString::fromUtf16(row.text));
            QCOMPARE(cell->imageView()->image().name(), QString::fromUtf16(row.image));
            const bool isThanks = row.place.section == 2;
            QCOMPARE(cell->reuseIdentifier(), isThanks ? u"thanks"_s : u"root.cell"_s);
            QCOMPARE(cell->selectionStyle() == UITableViewCellSelectionStyle::None, isThanks);
            if (isThanks)
                continue;
            QVERIFY(cell->imageView()->image().isTemplate());
            const UIColor tint = cell->imageView()->tintColor();
            QCOMPARE(tint.drawn(false), UIColor::systemBlueColor().drawn(false));
            QCOMPARE(tint.drawn(true), UIColor::systemTealColor().drawn(true));
        }
        QCOMPARE(home.numberOfSections(), 3);
        for (const auto &[section, count] : {std::pair{0, 1}, {1, 3}, {2, 1}, {3, 0}, {-1, 0}})
            QCOMPARE(home.numberOfRowsInSection(section), count);
        for (const auto &[section, height] : {std::pair{0, 14}, {1, 0}, {2, 0}})
            QCOMPARE(home.heightForFooterInSection(section), height);
        for (const char16_t *name : {u"header", u"button", u"root.detail.cell"})
            QVERIFY(home.tableView()->dequeueReusableCellWithIdentifier(QString::fromUtf16(name)));
    }

    void links_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QStringList>("opened");
        const QString chat = u"https://chat.wzt.example/invite/wzt"_s;
        const QStringList zebra{u"zbra://sources/add/https://repo.wzt.example"_s,
                                u"zbra://sources/add/https://supporter.wzt.example/repo/"_s, chat};
        const QString share = u"cydia://url/https://share.wzt.example/api/share#?source="_s;
        const QStringList cydia{share + u"https://repo.wzt.example"_s,
                                share + u"https://supporter.wzt.example/repo/"_s, chat};
        QTest::newRow("both") << QStringList{u"zbra"_s, u"cydia"_s} << zebra;
        QTest::newRow("Zebra") << QStringList{u"zbra"_s} << zebra;
        QTest::newRow("Cydia") << QStringList{u"cydia"_s} << cydia;
        QTest::newRow("neither") << QStringList() << cydia;
    }

    void links()
    {
        Stage stage;
        QFETCH(const QStringList, installed);
        stage.app.host().schemes = installed;
        for (const NSIndexPath &row : {NSIndexPath{1, 0}, {1, 1}, {1, 2}, {2, 0}}) {
            stage.tap(row);
            QVERIFY(!stage.screen().tableView()->indexPathForSelectedRow());
        }
        QTEST(stage.app.host().openedURLs, "opened");
        QVERIFY2(!stage.app.top<UIAlertController>(), "links are fire and forget");
        QVERIFY(!stage.screen().activityIndicator()->isAnimating());
        QCOMPARE(stage.app.service().connectionCount(), 0);
    }

    void everyTapMakesANewListOfProjects()
    {
        Stage stage;
        UINavigationController &navigation = *stage.screen().navigationController();
        std::vector<std::shared_ptr<UIViewController>> lists;
        for (int i = 0; i < 2; ++i) {
            stage.tap({0, 0});
            QVERIFY(!stage.screen().tableView()->indexPathForSelectedRow());
            lists.push_back(navigation.viewControllers().back());
            QVERIFY(qobject_cast<WZTRootIssueViewController *>(lists.back().get()));
            QVERIFY(navigation.goBack());
            QCOMPARE(navigation.topViewController(), &stage.screen());
        }
        QVERIFY(lists[0] != lists[1]);
    }

    void messages()
    {
        Stage stage;
        for (const bool isError : {true, false}) {
            isError ? stage.screen().displayErrorMessage(u"What"_s)
                    : stage.screen().displaySuccessMessage(u"What"_s);
            auto *alert = stage.app.top<UIAlertController>();
            QCOMPARE(alert->title(), isError ? u"Error"_s : u"Great!"_s);
            QCOMPARE(alert->message(), u"What"_s);
            alert->triggerDefault();
        }
    }

    void backgroundByVersion()
    {
        Stage stage;
        const auto background = [&](double version) {
            stage.app.application().traits().setSystemVersion(version);
            const auto home = make<WZTRootViewController>();
            home->loadViewIfNeeded();
            return home->view()->backgroundColor().drawn(true);
        };
        QCOMPARE(background(13), UIColor::systemGroupedBackgroundColor().drawn(true));
        QCOMPARE(background(12), UIColor::colorWithRed(0.949, 0.945, 0.965, 1).drawn(true));
    }
};

WZT_TEST(HomeTest)
#include "HomeTest.moc"
