// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/WindowStage.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "tests/uikit/TestPage.h"
#include "tests/uikit/tables/SampleTable.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

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

/// The page "Root" within a navigation controller.
struct TransitionStage : WindowStage {
    explicit TransitionStage(const DesktopAppearance &appearance = {}) : WindowStage(appearance)
    {
        show(navigation);
    }
    /// Of the finger, as the way back has it.
    [[nodiscard]] double speed() const
    {
        return items(u"BackSwipe"_s).constLast()->property("speed").toDouble();
    }

    std::shared_ptr<TestPage> root = make<TestPage>(u"Root"_s);
    std::shared_ptr<UINavigationController> navigation = make<UINavigationController>(root);
};

} // namespace

/// Transitions as they are drawn.
class TransitionViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void everyTransitionEndsOnce()
    {
        for (const auto &[animated, reduceMotion] :
             {std::pair(true, false), {false, false}, {true, true}}) {
            const bool slides = animated && !reduceMotion;
            WindowStage stage({.reduceMotion = reduceMotion});
            const auto root = make<TestPage>(u"Root"_s);
            stage.show(root);
            const auto modal = make<TestPage>(u"Modal"_s);
            root->presentViewController(modal, animated, modal->counted());
            QCOMPARE(modal->completed, animated ? 0 : 1);
            const QPointer<QQuickItem> entry = stage.items(u"TransitionEntryView"_s).value(1);
            QCOMPARE(entry->y() > 0 && entry->isVisible(), slides);
            stage.settle();
            QVERIFY(modal->completed == 1 && modal->appeared == 1 && entry->y() == 0);
            QVERIFY(!stage.items(u"TransitionEntryView"_s).value(0)->isVisible());

            modal->dismissViewControllerAnimated(animated, modal->counted());
            if (slides) {
                QTRY_VERIFY(entry && entry->y() > 0);
            }
            stage.settle();
            QVERIFY(modal->completed == 2 && root->appeared == 2);
            QCOMPARE(stage.items(u"TransitionEntryView"_s).size(), 1);
        }
    }

    void pagesAreSwipedAway_data()
    {
        addCases<Swipe>({
            {"past the middle", 10, 250, true, true},
            {"not far enough", 10, 150, true, false},
            {"a fling", 10, 130, false, true},
            {"not from the edge", 30, 250, true, false, false},
            {"mirrored", 10, 250, true, true, true, true},
            {"reduced motion", 10, 250, true, true, true, false, true},
        });
    }

    void pagesAreSwipedAway()
    {
        const Swipe &swipe = currentCase<Swipe>();
        if (swipe.mirrored) {
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        }
        const int direction = swipe.mirrored ? -1 : 1;
        const auto at = [&](int x) { return QPoint(swipe.mirrored ? 389 - x : x, 400); };
        TransitionStage stage({.reduceMotion = swipe.reduceMotion});
        const auto page = make<TestPage>(u"Page"_s);
        stage.navigation->pushViewController(page, false);
        const QList<QQuickItem *> entries = stage.items(u"TransitionEntryView"_s).mid(1);

        Finger finger(stage.view(), at(swipe.from));
        finger.move(at(swipe.to));
        QCOMPARE(entries[1]->x() * direction > 100, swipe.moves);
        QCOMPARE(entries[0]->isVisible(), swipe.moves);
        QVERIFY(!swipe.moves || (entries[0]->x() * direction < 0) != swipe.reduceMotion);
        QCOMPARE(stage.root->appearanceState(), AppearanceState::Disappeared);
        if (swipe.rests) {
            QTRY_COMPARE(stage.speed(), 0.0);
        }
        finger.lift();
        // On a busy machine a fling may be too slow to be one.
        for (int again = 0; again < 20 && !swipe.rests; ++again) {
            if (stage.navigation->topViewController() == stage.root.get()) {
                break;
            }
            QTRY_COMPARE(entries[1]->x(), 0);
            stage.drag(at(swipe.from), at(swipe.to));
        }
        QCOMPARE(stage.navigation->topViewController() == stage.root.get(), swipe.leaves);
        QTRY_COMPARE(entries[0]->isVisible(), swipe.leaves);
        stage.settle();
        QCOMPARE(stage.root->appeared, swipe.leaves ? 2 : 1);
        QCOMPARE(page->appeared, 1);
        QCOMPARE(entries[swipe.leaves ? 0 : 1]->x(), 0);
        QCOMPARE(stage.focused(), swipe.leaves ? u"Root"_s : u"Page"_s);
    }

    // The root stays, and so does a page whose left button replaces the back button, or a page
    // under an alert.
    void someSwipesMoveNothing()
    {
        TransitionStage stage;
        const auto page = make<TestPage>(u"Page"_s);
        const auto alert = make<UIAlertController>(u"Alert"_s, QString());
        const auto swipe = [&](const std::function<void()> &meanwhile = [] {}) {
            Finger finger(stage.view(), {10, 400});
            finger.move({250, 400});
            meanwhile();
            finger.lift();
            return stage.navigation->topViewController()->navigationItem()->title();
        };
        QCOMPARE(swipe(), u"Root"_s);
        stage.navigation->pushViewController(page, true);
        QCOMPARE(swipe(), u"Page"_s); // while it comes
        stage.settle();
        page->navigationItem()->setLeftBarButtonItem(make<UIBarButtonItem>(
            u"Other"_s, UIBarButtonItemStyle::Plain, page.get(), &TestPage::loadViewIfNeeded));
        QCOMPARE(swipe(), u"Page"_s);
        QVERIFY(!stage.navigation->goBack());
        page->navigationItem()->setLeftBarButtonItem({});
        QCOMPARE(swipe([&] { page->presentViewController(alert, true); }), u"Page"_s);
        stage.settle();
        QCOMPARE(swipe(), u"Page"_s);
        QTRY_COMPARE(TestWindow::rect(stage.named(u"Page"_s)), QRectF(0, 44, 390, 800));
        QCOMPARE(stage.root->appeared, 1);
        alert->dismissViewControllerAnimated(true);
        stage.settle();
        QCOMPARE(swipe(), u"Root"_s);
    }

    // Later movement does not change the decision.
    void aScrollFromTheEdgeStaysOne()
    {
        TransitionStage stage;
        const auto table = make<SampleTable>(std::vector{100});
        stage.navigation->pushViewController(table, false);
        const QQuickItem *page = stage.items(u"TransitionEntryView"_s).value(2);
        const QQuickItem *list = stage.named(u"list"_s);
        const auto offset = [&] { return list->property("contentY").toInt(); };
        for (const auto &[across, along] : {std::pair(100, 150), {110, 120}, {150, 100}}) {
            const bool scrolls = along > across;
            const int before = offset();
            Finger finger(stage.view(), {10, 500});
            finger.move(QPoint(10, 500) + QPoint(across, -along));
            finger.move(finger.at() + QPoint(50, 0));
            QTRY_COMPARE(page->x() > 50, !scrolls);
            QTRY_VERIFY(scrolls ? offset() > before + 50 : offset() == before);
            finger.move({0, 500});
            QTRY_COMPARE(stage.speed(), 0.0);
            finger.lift();
            stage.settle();
            QCOMPARE(stage.navigation->topViewController(), table.get());
            QVERIFY2(table->chosen.empty(), "a row is chosen");
            QTRY_VERIFY(!list->property("moving").toBool());
        }
        Finger finger(stage.view(), {10, 500});
        finger.move({200, 500});
        finger.move({380, 500});
        finger.lift();
        stage.settle();
        QCOMPARE(stage.navigation->topViewController(), stage.root.get());
        QVERIFY2(table->chosen.empty(), "a row is chosen");
    }

    void aSwipedPageStaysUnderTheFinger()
    {
        for (const bool mirrored : {false, true}) {
            QGuiApplication::setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            TransitionStage stage;
            stage.navigation->pushViewController(make<TestPage>(u"Page"_s), false);
            const QQuickItem *page = stage.items(u"TransitionEntryView"_s).value(2);
            QQuickView &view = stage.view();
            const auto at = [&](int x) { return QPoint(mirrored ? view.width() - x : x, 400); };
            const auto away = [&] { return qRound(qAbs(page->x())); };
            Finger finger(view, at(10));
            finger.move(at(150));
            QTRY_COMPARE(away(), 140);
            for (const int width : {800, 320}) {
                view.resize(width, 600);
                QTRY_COMPARE(page->width(), width);
                if (!mirrored) { // the edge itself moves
                    QCOMPARE(away(), 140);
                }
                finger.move(at(170));
                QTRY_COMPARE(away(), 160);
                finger.move(at(150));
                QTRY_COMPARE(away(), 140);
            }
            finger.lift();
        }
    }

    // A page goes while it comes; another follows; a modal comes over both and goes while it comes.
    void interruptedTransitionsEnd()
    {
        TransitionStage stage;
        const auto page = make<TestPage>(u"Page"_s);
        const auto modal = make<TestPage>(u"Modal"_s);
        const auto second = make<TestPage>(u"Second"_s);
        stage.navigation->pushViewController(page, true);
        const auto isUnderWay = [&] {
            return std::ranges::any_of(stage.items(u"TransitionEntryView"_s), [](auto *entry) {
                const double presence = entry->property("presence").toDouble();
                return presence > 0 && presence < 1;
            });
        };
        // On a busy machine it may be over at its first frame.
        (void)QTest::qWaitFor(isUnderWay, 1000);
        const int pageAppeared = page->appeared;
        stage.navigation->popViewControllerAnimated(true);
        stage.navigation->pushViewController(second, true);
        stage.root->presentViewController(modal, true, modal->counted());
        (void)QTest::qWaitFor(isUnderWay, 1000);
        const int modalAppeared = modal->appeared;
        modal->dismissViewControllerAnimated(true, modal->counted());
        stage.settle();
        QCOMPARE(modal->completed, 2);
        QCOMPARE(page->appeared, pageAppeared);
        QCOMPARE(modal->appeared, modalAppeared);
        QCOMPARE(second->appearanceState(), AppearanceState::Appeared);
        QCOMPARE(TestWindow::rect(stage.named(u"Second"_s)), QRectF(0, 44, 390, 800));
        QVERIFY(!stage.named(u"Modal"_s) && !stage.named(u"Page"_s));
    }

    void closedWindowEndsTransitions()
    {
        TransitionStage stage;
        const auto modal = make<TestPage>(u"Modal"_s);
        stage.root->presentViewController(modal, true, modal->counted());
        stage.close();
        QVERIFY(modal->completed == 1 && modal->appeared == 1);
    }
};

WZT_TEST(TransitionViewTest)
#include "TransitionViewTest.moc"
