// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/uikit/UITabBarController.h"
#include "platform/uikit/UITabBarItem.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Shell {
    std::shared_ptr<TestPage> home = make<TestPage>(u"Home"_s);
    std::shared_ptr<UINavigationController> navigation = make<UINavigationController>(home);
    std::shared_ptr<UITabBarController> tabs = make<UITabBarController>();

    Shell()
    {
        const auto account = make<TestPage>(u"Account"_s);
        const UIImage mark = UIImage::imageNamed(u"testMark"_s);
        home->setTabBarItem(std::make_unique<UITabBarItem>(QString(), mark, 0));
        home->tabBarItem()->setAccessibilityLabel(u"Start"_s);
        account->setTabBarItem(std::make_unique<UITabBarItem>(u"Account"_s, mark, 1));
        tabs->setViewControllers({navigation, account});
    }
};

using Places = std::tuple<const char *, QSize, double, QRectF>;
using WayBack = std::tuple<const char *, Qt::Key, Qt::KeyboardModifiers>;
} // namespace

/// Windows, bars and tabs: geometry, touch, keys, accessibility.
class ContainersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowEnds()
    {
        WindowFixture fixture;
        fixture.show(make<TestPage>(u"Root"_s));
        QCOMPARE(fixture.host->view().size(), QSize(390, 844));
        QCOMPARE(fixture.host->view().minimumSize(), QSize(320, 568));
        const QSignalSpy quits(fixture.host->view().engine(), &QQmlEngine::quit);
        fixture.key(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(quits.size(), 1);
    }

    void barsKeepTheirPlaces_data()
    {
        addCases<Places>({
            {"smallest", {320, 568}, 1, {160, 519, 160, 49}},
            {"smallest, large text", {320, 568}, 2, {160, 519, 160, 49}},
            {"tablet", {768, 1024}, 1, {384, 975, 160, 49}},
        });
    }

    void barsKeepTheirPlaces()
    {
        const auto &[name, size, textScale, secondTab] = currentCase<Places>();
        WindowFixture fixture({.textScale = textScale});
        const Shell shell;
        fixture.show(shell.tabs, {}, size);
        const QRectF bar = WindowFixture::rect(fixture.item(u"UINavigationBarView"_s));
        const QRectF page = WindowFixture::rect(fixture.named(u"Home"_s));
        const QRectF tabs = WindowFixture::rect(fixture.item(u"UITabBarView"_s));
        QCOMPARE(bar, QRectF(0, 0, size.width(), 44));
        QCOMPARE(page.topLeft(), bar.bottomLeft());
        QCOMPARE(page.bottomRight(), tabs.topRight());
        QCOMPARE(tabs.bottomRight(), QPointF(size.width(), size.height()));
        const QList<QQuickItem *> items = fixture.items(u"UITabBarItemView"_s);
        QCOMPARE(WindowFixture::rect(items.value(1)), secondTab);
        // Without a title the picture has the middle.
        const QRectF picture = WindowFixture::rect(fixture.item(u"UIImagePicture"_s));
        QCOMPARE(picture.size(), QSizeF(25, 25));
        const QPointF off = picture.center() - WindowFixture::rect(items.value(0)).center();
        QVERIFY(off.manhattanLength() <= 1);
    }

    void waysBack_data()
    {
        addCases<WayBack>({{"touch", Qt::Key_unknown, {}},
                           {"Escape", Qt::Key_Escape, {}},
                           {"Alt+Left", Qt::Key_Left, Qt::AltModifier}});
    }

    void waysBack()
    {
        const auto &[name, key, modifiers] = currentCase<WayBack>();
        WindowFixture fixture;
        const Shell shell;
        fixture.show(shell.tabs);
        QVERIFY(!fixture.item(u"UIBackButtonView"_s)->isVisible());
        shell.navigation->pushViewController(make<TestPage>(u"Projects"_s), true);
        fixture.settle();
        QCOMPARE(fixture.focused(), u"Projects"_s);
        const QStringList names = fixture.accessible();
        QVERIFY(names.contains(u"Button Back to Home"_s) && names.contains(u"Heading Projects"_s));
        QVERIFY(!names.contains(u"EditableText Home"_s));

        if (key == Qt::Key_unknown)
            fixture.tap(fixture.item(u"UIBackButtonView"_s));
        else
            fixture.key(key, modifiers);
        fixture.settle();
        QCOMPARE(shell.navigation->topViewController(), shell.home.get());
        QCOMPARE(fixture.focused(), u"Home"_s);
        QVERIFY(!fixture.accessible().contains(u"Button Back"_s));
        // There is nothing to go back to any more.
        if (key != Qt::Key_unknown)
            fixture.key(key, modifiers);
        QCOMPARE(shell.home->appeared, 2);
    }

    void longTitlesLeaveTheBackButton()
    {
        WindowFixture fixture({.textScale = 2});
        const Shell shell;
        fixture.show(shell.tabs, {}, {320, 568});
        shell.navigation->pushViewController(make<TestPage>(u"A title too long for the bar"_s),
                                             false);
        const QRectF back = WindowFixture::rect(fixture.item(u"UIBackButtonView"_s));
        QCOMPARE(back.size(), QSizeF(44, 44));
        for (const QQuickItem *item : fixture.item(u"UINavigationBarView"_s)->childItems()) {
            const bool isTitle = item->property("text").isValid();
            QVERIFY(!isTitle || !WindowFixture::rect(item).intersects(back));
        }
    }

    void tabsAreChosen()
    {
        WindowFixture fixture;
        const Shell shell;
        fixture.show(shell.tabs);
        const QSignalSpy chosen(shell.tabs->tabBar(), &UITabBar::itemChosen);
        const QList<QQuickItem *> tabs = fixture.items(u"UITabBarItemView"_s);
        fixture.tap(tabs[1]);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(shell.tabs->selectedIndex(), 1);
        QCOMPARE(fixture.focused(), u"Account"_s);
        const auto state = [&](int tab) {
            return QAccessible::queryAccessibleInterface(tabs[tab])->state();
        };
        QVERIFY(!state(0).selected && state(1).selected);
        const QStringList names = fixture.accessible();
        QVERIFY(names.contains(u"PageTab Start"_s) && names.contains(u"PageTab Account"_s));
        QVERIFY(!names.contains(u"Heading Home"_s));
        fixture.tap(tabs[1]);
        QCOMPARE(chosen.size(), 2);

        // By screen reader, then from tab to tab by keyboard.
        QAccessible::queryAccessibleInterface(tabs[0])->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QCOMPARE(shell.tabs->selectedIndex(), 0);
        fixture.key(Qt::Key_Tab);
        QCOMPARE(fixture.focused(), u"Start"_s);
        fixture.key(Qt::Key_Right);
        QCOMPARE(fixture.focused(), u"Account"_s);
        QVERIFY(tabs[1]->property("focusVisible").toBool());
        fixture.key(Qt::Key_Space);
        QCOMPARE(shell.tabs->selectedIndex(), 1);
        QCOMPARE(fixture.focused(), u"Account"_s);
        fixture.key(Qt::Key_Left);
        fixture.key(Qt::Key_Return);
        QCOMPARE(shell.tabs->selectedIndex(), 0);
        QCOMPARE(chosen.size(), 5);
    }

    void arrowsGoWhereTheyPoint()
    {
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            WindowFixture fixture;
            const Shell shell;
            fixture.show(shell.tabs);
            fixture.key(Qt::Key_Tab);
            const bool mirrored = direction == Qt::RightToLeft;
            fixture.key(mirrored ? Qt::Key_Right : Qt::Key_Left); // there is none
            QCOMPARE(fixture.focused(), u"Start"_s);
            fixture.key(mirrored ? Qt::Key_Left : Qt::Key_Right);
            QCOMPARE(fixture.focused(), u"Account"_s);
        }
    }
};

WZT_TEST(ContainersTest)
#include "ContainersTest.moc"
