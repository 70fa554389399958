// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/QueryString.h"
#include "app/WZTTabBarController.h"
#include "platform/uikit/Make.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/uikit/UITabBarItem.h"
#include "screens/WZTLoginViewController.h"
#include "screens/WZTRootViewController.h"
#include "screens/WZTUserViewController.h"
#include "service/WZTAPI.h"
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
class Reloads {
public:
    explicit Reloads(TestApp &app)
        : m_home(app.delegate().rootVC()->tableView()->entries(), &QAbstractItemModel::modelReset),
          m_account(app.delegate().userVC()->tableView()->entries(),
                    &QAbstractItemModel::modelReset)
    {
    }
    [[nodiscard]] QPair<qsizetype, qsizetype> counts() const
    {
        return {m_home.count(), m_account.count()};
    }

private:
    QSignalSpy m_home;
    QSignalSpy m_account;
};

} // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartShowsLoginOverHome();
    void theTabsStandInOrder();
    void aSignInIsKeptForTheNextStart();
    void aReplacedRecordReplacesTheArchive();
    void aRecordThatCannotBeArchivedIsHeldInMemoryOnly();
    void signingOutForgetsAndAsksAgain();
    void dataThatIsNoUserCountsAsNoneAndStays_data();
    void dataThatIsNoUserCountsAsNoneAndStays();
    void everyChosenTabIsFeltOnce();
    void theTintFollowsStyleAndVersion_data();
    void theTintFollowsStyleAndVersion();
    void queryStringsAreRead_data();
    void queryStringsAreRead();
    void anyURLIsAcceptedAndChangesNothing();
    void theEndCancelsPendingRequests();
};

void AppDelegateTest::aFirstStartShowsLoginOverHome()
{
    TestApp app;
    app.launch();
    auto *login = app.top<WZTLoginViewController>();
    QVERIFY(login);
    QCOMPARE(login->presentingViewController(), app.delegate().tabController());
    // Not animated: the transition is over already.
    QCOMPARE(login->appearanceState(), UIAppearanceState::Appeared);
    QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
    QVERIFY(!app.delegate().currentUser());
    QVERIFY(!app.keptData());
    QVERIFY(QDir(app.folder()).isEmpty());
}

void AppDelegateTest::theTabsStandInOrder()
{
    TestApp app;
    app.launch();
    const auto &tabs = app.delegate().tabController()->viewControllers();
    const auto &items = app.delegate().tabController()->tabBar()->items();
    const std::tuple<UIViewController *, QString, QString> expected[] = {
        {app.delegate().rootVC(), u"home"_s, u"Home"_s},
        {app.delegate().userVC(), u"user"_s, u"Account"_s},
    };
    QCOMPARE(tabs.size(), 2U);
    QCOMPARE(items.size(), 2U);
    for (int i = 0; const auto &[screen, image, name] : expected) {
        const auto index = static_cast<size_t>(i);
        auto *navigation = qobject_cast<UINavigationController *>(tabs[index].get());
        QVERIFY(navigation);
        QCOMPARE(navigation->topViewController(), screen);
        QCOMPARE(screen->navigationItem()->title(), name);
        QCOMPARE(items[index]->title(), QString());
        QCOMPARE(items[index]->accessibilityLabel(), name);
        QCOMPARE(items[index]->image().name(), image);
        QCOMPARE(items[index]->tag(), i);
        ++i;
    }
}

void AppDelegateTest::aSignInIsKeptForTheNextStart()
{
    TestApp app;
    app.launch();
    const Reloads reloads(app);
    WZTSession::shared()->setCurrentUser(someUser());
    QCOMPARE(reloads.counts(), qMakePair(1, 1));
    QVERIFY(app.top<WZTLoginViewController>());

    const auto kept = app.keptData();
    app.launch();
    QVERIFY(app.delegate().currentUser() == someUser());
    QCOMPARE(app.top(), app.delegate().tabController());
    QCOMPARE(app.delegate().rootVC()->appearanceState(), UIAppearanceState::Appeared);
    QCOMPARE(app.keptData(), kept);
}

void AppDelegateTest::aReplacedRecordReplacesTheArchive()
{
    TestApp app;
    app.keepUser(someUser());
    app.launch();
    // A page above Home: the screen at the bottom is the one to reload.
    app.delegate().rootVC()->navigationController()->pushViewController(
        make<UITableViewController>(UITableViewStyle::Grouped), false);
    const Reloads reloads(app);
    app.delegate().setCurrentUser(someUser(u"Joanna"_s));
    QCOMPARE(reloads.counts(), qMakePair(1, 1));
    app.launch();
    QVERIFY(app.delegate().currentUser() == someUser(u"Joanna"_s));
}

void AppDelegateTest::aRecordThatCannotBeArchivedIsHeldInMemoryOnly()
{
    TestApp app;
    app.keepUser(someUser());
    app.launch();
    const Reloads reloads(app);
    const WZTUser broken = someUser(u"J\0o"_s);
    app.delegate().setCurrentUser(broken);
    QVERIFY(app.delegate().currentUser() == broken);
    QCOMPARE(reloads.counts(), qMakePair(0, 0));
    QCOMPARE(app.keptData(), TestApp::archived(someUser()));
}

void AppDelegateTest::signingOutForgetsAndAsksAgain()
{
    TestApp app;
    app.keepUser(someUser());
    app.launch();
    app.delegate().tabController()->setSelectedIndex(1);
    const Reloads reloads(app);
    WZTSession::shared()->logout();
    QVERIFY(!app.delegate().currentUser());
    QVERIFY(!app.keptData());
    QCOMPARE(reloads.counts(), qMakePair(1, 1));
    QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
    QCOMPARE(app.host().taps, 0);
    QVERIFY(app.top<WZTLoginViewController>());
    app.launch();
    QVERIFY(app.top<WZTLoginViewController>());
}

void AppDelegateTest::dataThatIsNoUserCountsAsNoneAndStays_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("no archive \xff\x00", 13);
    QTest::newRow("cut off") << TestApp::archived(someUser()).chopped(20);
    QTest::newRow("another class")
        << NSKeyedArchiver::archivedDataWithRootObject(someUser(), u"WZTIssue"_s).value();
}

void AppDelegateTest::dataThatIsNoUserCountsAsNoneAndStays()
{
    QFETCH(const QByteArray, data);
    TestApp app;
    app.keepData(data);
    app.launch();
    QVERIFY(!app.delegate().currentUser());
    QVERIFY(app.top<WZTLoginViewController>());
    QCOMPARE(app.keptData(), data);
    app.delegate().setCurrentUser(someUser());
    QCOMPARE(app.keptData(), TestApp::archived(someUser()));
}

void AppDelegateTest::everyChosenTabIsFeltOnce()
{
    TestApp app;
    app.keepUser(someUser());
    app.launch();
    for (int taps = 0; const int index : {1, 1, 0, 7}) {
        app.delegate().tabController()->tabBar()->choose(index);
        if (index < 2)
            ++taps;
        QCOMPARE(app.host().taps, taps);
    }
    QCOMPARE(app.delegate().tabController()->selectedIndex(), 0);
}

void AppDelegateTest::theTintFollowsStyleAndVersion_data()
{
    QTest::addColumn<double>("version");
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("teal");
    for (const double version : {12.5, 13.0, 17.0}) {
        for (const int style : {0, 1, 2})
            QTest::addRow("%.1f, %d", version, style)
                << version << style << (version >= 13 && style == 2);
    }
}

void AppDelegateTest::theTintFollowsStyleAndVersion()
{
    QFETCH(const double, version);
    QFETCH(const int, style);
    QFETCH(const bool, teal);
    TestApp app;
    app.launch();
    app.application().traits().setSystemVersion(version);
    const UITraitCollection traits{static_cast<UIUserInterfaceStyle>(style)};
    const UIColor tint = UIColorEx::tintColor();
    const UIColor expected = teal ? UIColor::systemTealColor() : UIColor::systemBlueColor();
    QVERIFY(tint.resolvedColorWithTraitCollection(traits)
            == expected.resolvedColorWithTraitCollection(traits));
    QVERIFY(version < 13 || tint != UIColorEx::tintColor());
    QVERIFY(app.delegate().tabController()->tabBar()->tintColor().resolvedColorWithTraitCollection(
                traits)
            == (style == 2 ? UIColor::systemTealColor() : UIColor::systemBlueColor())
                   .resolvedColorWithTraitCollection(traits));
}

void AppDelegateTest::queryStringsAreRead_data()
{
    using Items = QMap<QString, QString>;
    QTest::addColumn<QString>("text");
    QTest::addColumn<Items>("items");
    const std::pair<QString, Items> rows[] = {
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
    for (const auto &[text, items] : rows)
        QTest::newRow(qPrintable(u"\"%1\""_s.arg(text))) << text << items;
}

void AppDelegateTest::queryStringsAreRead()
{
    QFETCH(const QString, text);
    using Items = QMap<QString, QString>;
    QFETCH(const Items, items);
    TestApp app;
    app.launch();
    QCOMPARE(app.delegate().parseQueryString(text), items);
}

void AppDelegateTest::anyURLIsAcceptedAndChangesNothing()
{
    TestApp app;
    app.launch();
    const auto *top = app.top();
    for (const QString &url : {u""_s, u"wzt://x?a=%"_s, u"no url"_s})
        QVERIFY(app.delegate().openURL(url));
    QCOMPARE(app.top(), top);
    QVERIFY(app.host().openedURLs.isEmpty());
}

void AppDelegateTest::theEndCancelsPendingRequests()
{
    TestApp app;
    app.launch();
    app.service().stage("*", sandbox::Fault::silence(), -1);
    const QPointer<UIViewController> login = app.top();
    int calls = 0;
    NSUInteger code = 999;
    // As a screen does it: what follows a reply runs on the main thread and keeps the screen.
    WZTAPI::userForAccount(u"jo@wzt.example"_s,
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

WZT_TEST(AppDelegateTest)
#include "AppDelegateTest.moc"
