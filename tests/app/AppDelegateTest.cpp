// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/FullDisk.h"
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/foundation/base/Dispatch.h"
#include "platform/foundation/coding/NSKeyedArchiver.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/home/WZTRootViewController.h"
#include "service/WZTAPI.h"
#include "views/UIColorEx.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

WZTUser someUser(const QString &name = u"Jo"_s)
{
    WZTUser user(7, u"jo@wzt.example"_s, name);
    user.earlyAdopter = true;
    user.joinDate = NSDate{1e8};
    user.redditUsername = u"jo_r"_s;
    return user;
}

/// How often both tabs' tables were reloaded since it was made.
struct Reloads {
    explicit Reloads(TestApp &app)
        : home(app.delegate().rootVC()->tableView(), &UITableView::reloaded),
          account(app.delegate().userVC()->tableView(), &UITableView::reloaded)
    {
    }
    [[nodiscard]] bool were(int count) const
    {
        return home.count() == count && account.count() == count;
    }

    QSignalSpy home;
    QSignalSpy account;
};

/// How the controller over the tabs was presented.
bool presentedAnimated(TestApp &app)
{
    const TransitionStack &stack = *app.delegate().window()->presentation();
    return stack.index(1).data(TransitionStack::AnimatedRole).toBool();
}

} // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartShowsLoginOverHome()
    {
        TestApp app;
        app.launch();
        UITabBarController &tabs = *app.delegate().tabController();
        QVERIFY(app.top<WZTLoginViewController>() && !presentedAnimated(app));
        QCOMPARE(app.top()->presentingViewController(), &tabs);
        QCOMPARE(tabs.selectedIndex(), 0);
        QVERIFY(!app.delegate().currentUser() && QDir(app.folder()).isEmpty());

        QStringList shown;
        for (const auto &item : tabs.tabBar()->items()) {
            const auto tag = static_cast<std::size_t>(item->tag());
            const auto &navigation =
                dynamic_cast<UINavigationController &>(*tabs.viewControllers().at(tag));
            shown.append({navigation.topViewController()->navigationItem()->title(), item->title(),
                          item->accessibilityLabel(), item->image().name()});
        }
        QCOMPARE(shown.join(u'|'), u"Home||Home|home|Account||Account|user"_s);
    }

    void aSignInIsKeptReplacedAndForgotten()
    {
        TestApp app;
        app.launch();
        const Reloads reloads(app);
        WZTSession::shared()->setCurrentUser(someUser());
        QVERIFY(reloads.were(1));
        QVERIFY(app.top<WZTLoginViewController>());

        const auto kept = app.keptData();
        app.launch();
        QVERIFY(app.delegate().currentUser() == someUser());
        QCOMPARE(app.top(), app.delegate().tabController());
        QCOMPARE(app.delegate().rootVC()->appearanceState(), AppearanceState::Appeared);
        QCOMPARE(app.keptData(), kept);
        QVERIFY2(!app.delegate().userVC()->tableView()->refreshControl(),
                 "nobody has looked at it");

        // A page above Home: the screen at the bottom is the one to reload.
        app.delegate().rootVC()->navigationController()->pushViewController(
            make<UITableViewController>(UITableViewStyle::Grouped), false);
        const Reloads replaced(app);
        app.delegate().setCurrentUser(someUser(u"Joanna"_s));
        QVERIFY(replaced.were(1));
        app.launch();
        QVERIFY(app.delegate().currentUser() == someUser(u"Joanna"_s));

        app.delegate().tabController()->setSelectedIndex(1);
        QVERIFY(app.delegate().userVC()->tableView()->refreshControl());
        const Reloads forgotten(app);
        WZTSession::shared()->logout();
        QVERIFY(forgotten.were(1));
        QVERIFY(!app.delegate().currentUser() && !app.keptData());
        QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
        QCOMPARE(app.host().taps, 0);
        QVERIFY(app.top<WZTLoginViewController>() && presentedAnimated(app));
        app.launch();
        QVERIFY(app.top<WZTLoginViewController>());
    }

    void aRecordThatCannotBeArchivedIsHeldInMemoryOnly()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        const Reloads reloads(app);
        const WZTUser broken = someUser(QString(QChar(0xd800)));
        QTest::ignoreMessage(QtInfoMsg, "The user's record cannot be archived and is not kept.");
        app.delegate().setCurrentUser(broken);
        QVERIFY(app.delegate().currentUser() == broken && reloads.were(0));
        QVERIFY(!app.keptData()); // least of all somebody else's
    }

    void whereNothingCanBeWrittenTheNextStartIsSignedOut()
    {
        for (const bool replaces : {false, true}) {
            TestApp app;
            app.keepUser(someUser());
            app.launch();
            const Reloads reloads(app);
            {
                const FullDisk disk;
                if (replaces) {
                    app.delegate().setCurrentUser(someUser(u"Joanna"_s));
                } else {
                    app.delegate().logout();
                }
            }
            QVERIFY(reloads.were(1));
            QCOMPARE(app.delegate().currentUser().has_value(), replaces);
            QVERIFY(!app.keptData());
        }
    }

    /// The record lies where a link leads to that, for now, leads to itself.
    void aRecordThatCannotBeRemovedIsLogged()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        const QString folder =
            app.folder() + u'/' + QDir(app.folder()).entryList(QDir::Dirs).back();
        QVERIFY(QFile::rename(folder, folder + u".away"_s) && QFile::link(folder, folder));
        QTest::ignoreMessage(QtInfoMsg,
                             "The user's record cannot be removed: the next start finds it.");
        app.delegate().logout();
        QVERIFY(!app.delegate().currentUser() && app.top<WZTLoginViewController>());
        QVERIFY(QFile::remove(folder) && QFile::rename(folder + u".away"_s, folder));
        QCOMPARE(app.keptData(), TestApp::archived(someUser()));
    }

    void aStoredRecordIsNotRewritten()
    {
        NSCoder coder;
        coder.encodeObject(u"jo@wzt.example"_s, u"email"_s);
        const std::pair<QByteArray, std::optional<WZTUser>> rows[] = {
            {*NSKeyedArchiver::archivedDataWithCoder(coder, WZTUser::className),
             WZTUser(0, u"jo@wzt.example"_s, {})},
            {*NSKeyedArchiver::archivedDataWithCoder(coder, u"WZTIssue"_s), {}},
            {TestApp::archived(someUser()).chopped(20), {}},
            {{}, {}},
        };
        for (const auto &[data, user] : rows) {
            TestApp app;
            app.keepData(data);
            app.launch();
            QVERIFY(app.delegate().currentUser() == user);
            QCOMPARE(app.top<WZTLoginViewController>() == nullptr, user.has_value());
            QCOMPARE(app.keptData(), data);
            app.delegate().setCurrentUser(someUser());
            QCOMPARE(app.keptData(), TestApp::archived(someUser()));
        }
    }

    void everyChosenTabIsFeltOnce()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        for (const auto &[index, taps] : {std::pair(1, 1), {1, 2}, {0, 3}, {7, 3}}) {
            app.delegate().tabController()->tabBar()->choose(index);
            QCOMPARE(app.host().taps, taps);
        }
        QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
    }

    void theTintFollowsStyleAndVersion()
    {
        TestApp app;
        app.launch();
        const UIColor &bar = app.delegate().tabController()->tabBar()->tintColor();
        QVERIFY(bar.toQColor(true) == UIColor::systemTealColor().toQColor(true));
        for (const double version : {12.5, 13.0}) {
            app.application().traits().setSystemVersion(version);
            const UIColor dark =
                version < 13 ? UIColor::systemBlueColor() : UIColor::systemTealColor();
            const UIColor tint = UIColorEx::tintColor();
            QVERIFY(tint.toQColor(false) == UIColor::systemBlueColor().toQColor(false));
            QVERIFY(tint.toQColor(true) == dark.toQColor(true));
        }
    }

    void queryStringsAreRead()
    {
        using Items = QMap<QString, QString>;
        const std::pair<QString, Items> rows[] = {
            {u"a=1&b=%20x&a=2"_s, {{u"a"_s, u"2"_s}, {u"b"_s, u" x"_s}}},
            {u"a=1=2"_s, {{u"a"_s, u"1"_s}}},
            {u"=1&b="_s, {{u""_s, u"1"_s}, {u"b"_s, u""_s}}},
            {u"a%3D%26=%C3%BC+ü%2541%00"_s, {{u"a=&"_s, u"ü+ü%41\0"_s}}},
            {u""_s, {}},
            {u"a&&b=2"_s, {{u"b"_s, u"2"_s}}},
            {u"a=%&b=%4&c=%zz&%=d&e=%FF&f=%ED%A0%80&g=5"_s, {{u"g"_s, u"5"_s}}},
        };
        TestApp app;
        app.launch();
        for (const auto &[text, items] : rows) {
            QCOMPARE(app.delegate().parseQueryString(text), items);
        }
        QVERIFY(app.delegate().openURL(u"?a=%"_s));
    }

    void theEndCancelsPendingRequests()
    {
        TestApp app;
        app.launch();
        app.service().stage("*", sandbox::Fault::silence(), -1);
        const QPointer<UIViewController> login = app.top();
        QList<NSUInteger> codes;
        // As screens do: the reply is handled on the main thread and keeps the screen alive.
        WZTAPI::userForAccount(u"jo@wzt.example"_s,
                               [&, screen = strong(login.data())](NSUInteger code, const auto &) {
                                   dispatchAsyncMain([&codes, code, screen] {
                                       codes.append(code);
                                       screen->dismissViewControllerAnimated(true);
                                   });
                               });
        app.quit();
        QCOMPARE(codes, QList<NSUInteger>{2});
        QVERIFY(!login && !UIApplication::sharedApplication());
        QVERIFY(!WZTSession::shared() && !NSURLSession::sharedSession());
    }
};

WZT_TEST(AppDelegateTest)
#include "AppDelegateTest.moc"
