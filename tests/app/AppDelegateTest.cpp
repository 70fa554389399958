// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/LifeCycle.h"
#include "app/WZTTabBarController.h"
#include "model/BuildConstants.h"
#include "platform/foundation/Dispatch.h"
#include "platform/foundation/NSKeyedArchiver.h"
#include "platform/uikit/Make.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/uikit/UITabBarItem.h"
#include "screens/WZTLoginViewController.h"
#include "screens/WZTRootViewController.h"
#include "screens/WZTUserViewController.h"
#include "service/WZTAPI.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "views/UIColorEx.h"

#include <QSignalSpy>
#include <QTest>

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
    const UITransitionStack &stack = *app.delegate().window()->presentation();
    return stack.index(1).data(UITransitionStack::AnimatedRole).toBool();
}

using Data = std::tuple<const char *, QByteArray>;

} // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartShowsLoginOverHome()
    {
        TestApp app;
        app.launch();
        auto *login = app.top<WZTLoginViewController>();
        QVERIFY(login);
        QCOMPARE(login->presentingViewController(), app.delegate().tabController());
        QVERIFY(!presentedAnimated(app));
        QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
        QVERIFY(!app.delegate().currentUser());
        QVERIFY(!app.keptData());
        QVERIFY(QDir(app.folder()).isEmpty());
    }

    void theTabsStandInOrder()
    {
        TestApp app;
        app.launch();
        const auto &tabs = app.delegate().tabController()->viewControllers();
        const auto &items = app.delegate().tabController()->tabBar()->items();
        QCOMPARE(tabs.size(), 2U);
        QCOMPARE(items.size(), 2U);
        const std::tuple<int, UIViewController *, QString, QString> expected[] = {
            {0, app.delegate().rootVC(), u"home"_s, u"Home"_s},
            {1, app.delegate().userVC(), u"user"_s, u"Account"_s},
        };
        for (const auto &[tag, screen, image, name] : expected) {
            const UITabBarItem &item = *items[size_t(tag)];
            const auto &navigation = dynamic_cast<UINavigationController &>(*tabs[size_t(tag)]);
            QCOMPARE(navigation.topViewController(), screen);
            QCOMPARE(screen->navigationItem()->title(), name);
            QCOMPARE(item.title(), QString());
            QCOMPARE(item.accessibilityLabel(), name);
            QCOMPARE(item.image().name(), image);
            QCOMPARE(item.tag(), tag);
        }
    }

    void aSignInIsKeptForTheNextStart()
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
        QCOMPARE(app.delegate().rootVC()->appearanceState(), UIAppearanceState::Appeared);
        QCOMPARE(app.keptData(), kept);
    }

    void anArchiveThatLacksFieldsSignsInAndIsNotWrittenBack()
    {
        NSCoder coder;
        coder.encodeObject(u"jo@wzt.example"_s, u"email"_s);
        const QByteArray data =
            NSKeyedArchiver::archivedDataWithCoder(coder, WZTUser::className).value();
        TestApp app;
        app.keepData(data);
        app.launch();
        QVERIFY(app.delegate().currentUser() == WZTUser(0, u"jo@wzt.example"_s, {}));
        QCOMPARE(app.top(), app.delegate().tabController());
        QCOMPARE(app.keptData(), data);
    }

    void aReplacedRecordReplacesTheArchive()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        // A page above Home: the screen at the bottom is the one to reload.
        app.delegate().rootVC()->navigationController()->pushViewController(
            make<UITableViewController>(UITableViewStyle::Grouped), false);
        const Reloads reloads(app);
        app.delegate().setCurrentUser(someUser(u"Joanna"_s));
        QVERIFY(reloads.were(1));
        app.launch();
        QVERIFY(app.delegate().currentUser() == someUser(u"Joanna"_s));
    }

    void aRecordThatCannotBeArchivedIsHeldInMemoryOnly()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        const Reloads reloads(app);
        const WZTUser broken = someUser(u"J\0o"_s);
        app.delegate().setCurrentUser(broken);
        QVERIFY(app.delegate().currentUser() == broken);
        QVERIFY(reloads.were(0));
        QCOMPARE(app.keptData(), TestApp::archived(someUser()));
    }

    void signingOutForgetsAndAsksAgain()
    {
        TestApp app;
        app.keepUser(someUser());
        app.launch();
        app.delegate().tabController()->setSelectedIndex(1);
        const Reloads reloads(app);
        WZTSession::shared()->logout();
        QVERIFY(!app.delegate().currentUser());
        QVERIFY(!app.keptData());
        QVERIFY(reloads.were(1));
        QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
        QCOMPARE(app.host().taps, 0);
        QVERIFY(app.top<WZTLoginViewController>() && presentedAnimated(app));
        app.launch();
        QVERIFY(app.top<WZTLoginViewController>());
    }

    void dataThatIsNoUserCountsAsNoneAndStays_data()
    {
        const auto other = NSKeyedArchiver::archivedDataWithRootObject(someUser(), u"WZTIssue"_s);
        addCases<Data>({
            {"empty", {}},
            {"garbage", {"no archive \xff\x00", 13}},
            {"cut off", TestApp::archived(someUser()).chopped(20)},
            {"another class", other.value()},
        });
    }

    void dataThatIsNoUserCountsAsNoneAndStays()
    {
        const auto &[name, data] = currentCase<Data>();
        TestApp app;
        app.keepData(data);
        app.launch();
        QVERIFY(!app.delegate().currentUser());
        QVERIFY(app.top<WZTLoginViewController>());
        QCOMPARE(app.keptData(), data);
        app.delegate().setCurrentUser(someUser());
        QCOMPARE(app.keptData(), TestApp::archived(someUser()));
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
        for (const double version : {12.5, 13.0, 17.0}) {
            app.application().traits().setSystemVersion(version);
            const UIColor tint = UIColorEx::tintColor();
            const bool dynamic = version >= 13;
            QVERIFY(!dynamic || tint != UIColorEx::tintColor());
            QVERIFY(tint.drawn(false) == UIColor::systemBlueColor().drawn(false));
            QVERIFY(
                tint.drawn(true)
                == (dynamic ? UIColor::systemTealColor() : UIColor::systemBlueColor()).drawn(true));
        }
        // The bar was given its tint at the launch, on the newest system.
        QVERIFY(app.delegate().tabController()->tabBar()->tintColor().drawn(true)
                == UIColor::systemTealColor().drawn(true));
    }

    void queryStringsAreRead()
    {
        const std::pair<QString, QMap<QString, QString>> rows[] = {
            {u"a=1&b=%20x"_s, {{u"a"_s, u"1"_s}, {u"b"_s, u" x"_s}}},
            {u"a=1&a=2"_s, {{u"a"_s, u"2"_s}}},
            {u"a=1=2"_s, {{u"a"_s, u"1"_s}}},
            {u"=1&b="_s, {{u""_s, u"1"_s}, {u"b"_s, u""_s}}},
            {u"a%3D%26=%C3%BC+ü"_s, {{u"a=&"_s, u"ü+ü"_s}}},
            {u"%61=%2541"_s, {{u"a"_s, u"%41"_s}}},
            {u""_s, {}},
            {u"a&&b=2"_s, {{u"b"_s, u"2"_s}}},
            {u"a=%&b=%4&c=%zz&%=d&e=5"_s, {{u"e"_s, u"5"_s}}},
            {u"a=%FF&b=%C3&c=%ED%A0%80&d=4"_s, {{u"d"_s, u"4"_s}}},
            {u"a=%00b"_s, {{u"a"_s, u"\0b"_s}}},
        };
        TestApp app;
        app.launch();
        for (const auto &[text, items] : rows)
            QCOMPARE(app.delegate().parseQueryString(text), items);
        QVERIFY(app.delegate().openURL(QLatin1StringView(BuildConstants::urlScheme) + "://x?a=%"_L1)
                && app.delegate().openURL(u""_s));
    }

    void theEndCancelsPendingRequests()
    {
        TestApp app;
        app.launch();
        app.service().stage("*", sandbox::Fault::silence(), -1);
        const QPointer<UIViewController> login = app.top();
        int calls = 0;
        NSUInteger code = 999;
        // As a screen does it: what follows a reply runs on the main thread and keeps the screen.
        WZTAPI::userForAccount(
            u"jo@wzt.example"_s,
            [&, screen = strong(login.data())](NSUInteger reported, const auto &) {
                dispatchAsyncMain([&calls, &code, reported, screen] {
                    ++calls;
                    code = reported;
                    screen->dismissViewControllerAnimated(true);
                });
            });
        app.quit();
        QCOMPARE(calls, 1);
        QCOMPARE(code, 2);
        QVERIFY(!login);
        QVERIFY(!UIApplication::sharedApplication());
        QVERIFY(!WZTSession::shared());
        QVERIFY(!NSURLSession::sharedSession());
    }

    void theLifeCycleIsTold()
    {
        struct Recorder : UIApplicationDelegate {
            QString told;
            bool didFinishLaunchingWithOptions() override { return true; }
            bool openURL(const QString &) override { return true; }
            void applicationWillResignActive() override { told += u'r'; }
            void applicationDidEnterBackground() override { told += u'b'; }
            void applicationWillEnterForeground() override { told += u'f'; }
            void applicationDidBecomeActive() override { told += u'a'; }
            void applicationWillTerminate() override { told += u't'; }
        };
        const std::pair<Qt::ApplicationState, QString> steps[] = {
            {Qt::ApplicationInactive, {}},      {Qt::ApplicationActive, u"a"_s},
            {Qt::ApplicationActive, {}},        {Qt::ApplicationInactive, u"r"_s},
            {Qt::ApplicationActive, u"a"_s},    {Qt::ApplicationHidden, u"rb"_s},
            {Qt::ApplicationSuspended, {}},     {Qt::ApplicationInactive, u"f"_s},
            {Qt::ApplicationSuspended, u"b"_s}, {Qt::ApplicationActive, u"fa"_s},
        };
        Recorder recorder;
        LifeCycle lifeCycle(recorder);
        for (const auto &[state, told] : steps) {
            lifeCycle.enter(state);
            QCOMPARE(std::exchange(recorder.told, {}), told);
        }
    }
};

WZT_TEST(AppDelegateTest)
#include "AppDelegateTest.moc"
