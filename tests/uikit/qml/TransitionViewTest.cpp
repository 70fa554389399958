// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/uikit/UITabBarController.h"
#include "platform/uikit/UITabBarItem.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<UITabBarController> tabsOf(const std::shared_ptr<UIViewController> &first,
                                           const std::shared_ptr<UIViewController> &second)
{
    first->setTabBarItem(std::make_unique<UITabBarItem>(QString(), UIImage(), 0));
    second->setTabBarItem(std::make_unique<UITabBarItem>(QString(), UIImage(), 1));
    auto tabs = make<UITabBarController>();
    tabs->setViewControllers({first, second});
    return tabs;
}

struct Swipe {
    const char *name;
    int from; // points from the edge
    int to;
    bool rests; // before it is lifted
    bool leaves;
    bool moves = true;
    bool mirrored = false;
    bool reduceMotion = false;
};

using Transition = std::tuple<const char *, bool, bool, bool, bool>;
} // namespace

/// Transitions as they are drawn.
class TransitionViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTransitionEndsOnce_data()
    {
        addCases<Transition>({
            {"animated", false, true, false, true},
            {"immediate", false, false, false, false},
            {"reduced motion", false, true, true, false},
            {"file missing", true, true, false, false},
        });
    }

    void everyTransitionEndsOnce()
    {
        const auto &[name, broken, animated, reduceMotion, slides] = currentCase<Transition>();
        WindowFixture fixture({.reduceMotion = reduceMotion});
        const auto root = make<TestPage>(u"Root"_s);
        fixture.show(root);
        QCOMPARE(root->appeared, 1);

        std::shared_ptr<TestPage> modal = make<TestPage>(u"Modal"_s);
        if (broken) {
            modal = make<BrokenPage>();
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Missing\\.qml"_s));
        }
        root->presentViewController(modal, animated, modal->counted());
        QCOMPARE(modal->completed, animated ? 0 : 1);
        const QPointer<QQuickItem> entry = fixture.items(u"UITransitionEntryView"_s).value(1);
        QVERIFY(entry);
        QCOMPARE(entry->y() > 0 && entry->isVisible(), slides);
        fixture.settle();
        QCOMPARE(modal->completed, 1);
        QCOMPARE(modal->appeared, 1);
        QCOMPARE(entry->y(), 0);
        QVERIFY(!fixture.items(u"UITransitionEntryView"_s).value(0)->isVisible());

        modal->dismissViewControllerAnimated(animated, modal->counted());
        if (slides)
            QTRY_VERIFY(entry && entry->y() > 0);
        fixture.settle();
        QCOMPARE(modal->completed, 2);
        QCOMPARE(root->appeared, 2);
        QCOMPARE(fixture.items(u"UITransitionEntryView"_s).size(), 1);
    }

    void pagesMoveAsideAndBack()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        const auto navigation = make<UINavigationController>(root);
        fixture.show(navigation);
        const auto page = make<TestPage>(u"Page"_s);
        navigation->pushViewController(page, true);
        const QList<QQuickItem *> entries = fixture.items(u"UITransitionEntryView"_s).mid(1);
        QCOMPARE(entries.size(), 2);
        QTRY_VERIFY(entries[0]->x() < 0);
        QVERIFY(entries[1]->x() > 0);
        fixture.settle();
        QCOMPARE(entries[1]->x(), 0);
        QVERIFY(!entries[0]->isVisible());

        // Not animated: nothing may be left aside.
        navigation->popViewControllerAnimated(false);
        QCOMPARE(entries[0]->x(), 0);
        QVERIFY(entries[0]->isVisible());
        QCOMPARE(root->appeared, 2);
    }

    void pagesAreSwipedAway_data()
    {
        addCases<Swipe>({
            {"past the middle", 10, 250, true, true},
            {"not far enough", 10, 150, true, false},
            {"a fling", 10, 130, false, true},
            {"not from the edge", 30, 250, true, false, false},
            {"mirrored", 10, 250, true, true, true, true},
            {"mirrored, not far enough", 10, 150, true, false, true, true},
            {"reduced motion", 10, 250, true, true, true, false, true},
            {"reduced motion, not far enough", 10, 150, true, false, true, false, true},
        });
    }

    void pagesAreSwipedAway()
    {
        const Swipe &swipe = currentCase<Swipe>();
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        if (swipe.mirrored)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const int direction = swipe.mirrored ? -1 : 1;
        const auto at = [&](int x) { return QPoint(swipe.mirrored ? 389 - x : x, 400); };
        WindowFixture fixture({.reduceMotion = swipe.reduceMotion});
        const auto root = make<TestPage>(u"Root"_s);
        const auto page = make<TestPage>(u"Page"_s);
        const auto navigation = make<UINavigationController>(root);
        fixture.show(navigation);
        navigation->pushViewController(page, false);
        const QList<QQuickItem *> entries = fixture.items(u"UITransitionEntryView"_s).mid(1);

        WindowDriver::Finger finger(fixture.host->view(), at(swipe.from));
        finger.move(at(swipe.to));
        QCOMPARE(entries[1]->x() * direction > 100, swipe.moves);
        QCOMPARE(entries[0]->isVisible(), swipe.moves);
        QVERIFY(!swipe.moves || (entries[0]->x() * direction < 0) != swipe.reduceMotion);
        QCOMPARE(root->appearanceState(), UIAppearanceState::Disappeared);
        QTest::qWait(swipe.rests ? 150 : 0);
        finger.lift();
        QCOMPARE(navigation->topViewController() == root.get(), swipe.leaves);
        QTRY_COMPARE(entries[0]->isVisible(), swipe.leaves);
        fixture.settle();
        QCOMPARE(root->appeared, swipe.leaves ? 2 : 1);
        QCOMPARE(page->appeared, 1);
        QCOMPARE(entries[swipe.leaves ? 0 : 1]->x(), 0);
        QCOMPARE(fixture.focused(), swipe.leaves ? u"Root"_s : u"Page"_s);
    }

    // The root stays; so does a page with a button in the place of the way back, and whatever an
    // alert comes over.
    void someSwipesMoveNothing()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        const auto page = make<TestPage>(u"Page"_s);
        const auto navigation = make<UINavigationController>(root);
        const auto swipe = [&] {
            WindowDriver::Finger finger(fixture.host->view(), {10, 400});
            finger.move({250, 400});
            finger.lift();
            return navigation->topViewController()->navigationItem()->title();
        };
        fixture.show(navigation);
        QCOMPARE(swipe(), u"Root"_s);
        navigation->pushViewController(page, true);
        QCOMPARE(swipe(), u"Page"_s); // while it comes
        fixture.settle();
        page->navigationItem()->setLeftBarButtonItem(make<UIBarButtonItem>(
            u"Other"_s, UIBarButtonItemStyle::Plain, page.get(), &TestPage::loadViewIfNeeded));
        QCOMPARE(swipe(), u"Page"_s);
        page->navigationItem()->setLeftBarButtonItem({});

        WindowDriver::Finger finger(fixture.host->view(), {10, 400});
        finger.move({250, 400});
        const auto alert = make<UIAlertController>(u"Alert"_s, QString());
        page->presentViewController(alert, true);
        finger.lift();
        fixture.settle();
        QCOMPARE(swipe(), u"Page"_s);
        QTRY_COMPARE(WindowFixture::rect(fixture.named(u"Page"_s)), QRectF(0, 44, 390, 800));
        QCOMPARE(root->appeared, 1);
        alert->dismissViewControllerAnimated(true);
        fixture.settle();
        QCOMPARE(swipe(), u"Root"_s);
    }

    void interruptedTransitionsEnd()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        const auto navigation = make<UINavigationController>(root);
        fixture.show(navigation);
        const auto page = make<TestPage>(u"Page"_s);
        const auto modal = make<TestPage>(u"Modal"_s);
        const auto second = make<TestPage>(u"Second"_s);
        // A page goes while it comes; another follows; a modal comes over both and goes while it
        // comes.
        navigation->pushViewController(page, true);
        QTest::qWait(50);
        navigation->popViewControllerAnimated(true);
        navigation->pushViewController(second, true);
        root->presentViewController(modal, true, modal->counted());
        QTest::qWait(50);
        modal->dismissViewControllerAnimated(true, modal->counted());
        fixture.settle();
        QCOMPARE(modal->completed, 2);
        QCOMPARE(modal->appeared, 0);
        QCOMPARE(page->appeared, 0);
        QCOMPARE(second->appearanceState(), UIAppearanceState::Appeared);
        QCOMPARE(WindowFixture::rect(fixture.named(u"Second"_s)), QRectF(0, 44, 390, 800));
        QVERIFY(!fixture.named(u"Modal"_s) && !fixture.named(u"Page"_s));
    }

    void closedWindowEndsTransitions()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        fixture.show(root);
        const auto modal = make<TestPage>(u"Modal"_s);
        root->presentViewController(modal, true, modal->counted());
        fixture.host.reset();
        QCOMPARE(modal->completed, 1);
        QCOMPARE(modal->appeared, 1);
    }

    void tabsAreBuiltWhenTheyAreSeen()
    {
        WindowFixture fixture;
        const auto login = make<TestPage>(u"Login"_s);
        const auto tabs = tabsOf(make<TestPage>(u"Home"_s), make<TestPage>(u"Account"_s));
        fixture.show(tabs, login);
        QCOMPARE(fixture.focused(), u"Login"_s);
        QVERIFY(!fixture.item(u"UITabBarView"_s));

        login->dismissViewControllerAnimated(true);
        QTRY_VERIFY(fixture.item(u"UITabBarView"_s));
        QTRY_VERIFY(fixture.named(u"Login"_s)->mapToScene(QPointF()).y() > 0);
        fixture.settle();
        QCOMPARE(fixture.focused(), u"Home"_s);
        const QPointer<QQuickItem> home = fixture.named(u"Home"_s);
        QVERIFY(home && home->isVisible());
        QVERIFY(!fixture.named(u"Account"_s));

        tabs->setSelectedIndex(1);
        QCOMPARE(fixture.focused(), u"Account"_s);
        const QPointer<QQuickItem> account = fixture.named(u"Account"_s);
        QVERIFY(account->isVisible() && !home->isVisible());
        tabs->presentViewController(make<TestPage>(u"Modal"_s), false);
        tabs->setSelectedIndex(0);
        tabs->dismissViewControllerAnimated(false);
        QVERIFY(home && home->isVisible() && account && !account->isVisible());
        QCOMPARE(fixture.focused(), u"Home"_s);
    }
};

WZT_TEST(TransitionViewTest)
#include "TransitionViewTest.moc"
