// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationController.h"
#include "screens/WZTRootIssueViewController.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Home's menu, without a window.
class HomeTest : public QObject {
    Q_OBJECT

    // Somebody is signed in and looks at Home.
    std::unique_ptr<TestApp> m_app;
    WZTRootViewController *m_home = nullptr;

private Q_SLOTS:
    void init()
    {
        m_app = std::make_unique<TestApp>();
        m_app->keepUser(WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s));
        m_app->launch();
        m_home = m_app->delegate().rootVC();
        m_home->loadViewIfNeeded();
    }

    void rows()
    {
        const struct {
            NSIndexPath place;
            const char16_t *identifier;
            const char16_t *image;
            const char16_t *text;
        } rows[] = {
            {{0, 0}, u"root.cell", u"bugreport", u"Bug Reporter"},
            {{1, 0}, u"root.cell", u"add", u"Add Public Repo"},
            {{1, 1}, u"root.cell", u"add", u"Add Supporter Repo"},
            {{1, 2}, u"root.cell", u"discord", u"Join Discord"},
            {{2, 0}, u"thanks", u"", u""},
        };
        for (const auto &[place, identifier, image, text] : rows) {
            const auto cell = m_home->cellForRowAtIndexPath(place);
            QCOMPARE(cell->reuseIdentifier(), QString::fromUtf16(identifier));
            QCOMPARE(cell->imageView()->image().name(), QString::fromUtf16(image));
            QCOMPARE(cell->textLabel()->text(), QString::fromUtf16(text));
            QCOMPARE(cell->selectionStyle() == UITableViewCellSelectionStyle::None, !*text);
            const UIColor tint = cell->imageView()->tintColor();
            QVERIFY(!*text || tint.drawn(true) == UIColor::systemTealColor().drawn(true));
        }
        const int counts[] = {1, 3, 1, 0};
        const int footers[] = {14, 0, 0, 0};
        for (int section = 0; section < 4; ++section) {
            QCOMPARE(m_home->numberOfRowsInSection(section), counts[section]);
            QCOMPARE(m_home->heightForFooterInSection(section), footers[section]);
        }
        for (const QString &name : {u"header"_s, u"button"_s, u"root.detail.cell"_s})
            QVERIFY(m_home->tableView()->dequeueReusableCellWithIdentifier(name));
    }

    void links()
    {
        const QString zebra = u"zbra://sources/add/"_s;
        const QString cydia = u"cydia://url/https://share.wzt.example/api/share#?source="_s;
        const std::pair<QStringList, QString> machines[] = {
            {{u"zbra"_s, u"cydia"_s}, zebra}, {{u"cydia"_s}, cydia}, {{}, cydia}};
        for (const auto &[installed, prefix] : machines) {
            m_app->host().schemes = installed;
            m_app->host().openedURLs.clear();
            for (const NSIndexPath &row : {NSIndexPath{1, 0}, {1, 1}, {1, 2}, {2, 0}}) {
                m_home->tableView()->chooseRowAtIndexPath(row);
                QVERIFY(!m_home->tableView()->indexPathForSelectedRow());
            }
            QCOMPARE(m_app->host().openedURLs,
                     (QStringList{prefix + u"https://repo.wzt.example"_s,
                                  prefix + u"https://supporter.wzt.example/repo/"_s,
                                  u"https://chat.wzt.example/invite/wzt"_s}));
            QVERIFY2(!m_app->top<UIAlertController>(), "links are fire and forget");
        }
    }

    void everyTapMakesANewListOfProjects()
    {
        UINavigationController &navigation = *m_home->navigationController();
        std::vector<std::shared_ptr<UIViewController>> lists;
        for (int i = 0; i < 2; ++i) {
            m_home->tableView()->chooseRowAtIndexPath({0, 0});
            lists.push_back(navigation.viewControllers().back());
            QVERIFY(qobject_cast<WZTRootIssueViewController *>(lists.back().get()));
            QVERIFY(navigation.goBack());
            QCOMPARE(navigation.topViewController(), m_home);
        }
        QVERIFY(lists[0] != lists[1]);
    }
};

WZT_TEST(HomeTest)
#include "HomeTest.moc"
