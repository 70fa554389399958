// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UITabBarController.h"
#include "platform/uikit/presentation/UIWindow.h"
#include "tools/random/RandomRuns.h"
#include "tools/random/ScriptPage.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 scripts = 8000;
constexpr int stepsOfAScript = 60;

using Controller = std::shared_ptr<UIViewController>;
using Cover = TransitionStack::Cover;

/// A window with two tabs, and a model of its controllers that knows no transitions.
class Script {
public:
    explicit Script(quint32 seed) : m_dice(seed)
    {
        m_world.meanwhile = [this] {
            if (m_depth < 3 && m_dice.once(12)) {
                step();
            }
        };
        m_tabs = make<UITabBarController>();
        m_tabs->setViewControllers({navigation(), navigation()});
        test(*m_window->presentation());
        m_presented = {m_tabs};
        m_window->makeKeyAndVisible();
        m_window->setRootViewController(m_tabs);
        if (m_dice.below(4) > 0) {
            m_window->presentation()->attachView();
        }
    }

    QString run()
    {
        for (int i = 0; i < stepsOfAScript && m_world.faults.isEmpty(); ++i) {
            step();
            compare();
        }
        m_world.meanwhile = [] {};
        end();
        tearDown();
        expect(m_world.living == 0, u"a page stays for ever"_s);
        const QString fault = m_world.faults.value(0);
        return fault.isEmpty() ? fault : fault + u" after "_s + m_log.join(u", "_s);
    }

private:
    using Pages = std::vector<Controller>;
    struct Navigation {
        std::shared_ptr<UINavigationController> controller;
        Pages pages; // of the model
    };

    void expect(bool isRight, const QString &fault)
    {
        m_world.faults.append(isRight ? QStringList() : QStringList(fault));
    }

    void test(TransitionStack &stack)
    {
        m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
            &stack, QAbstractItemModelTester::FailureReportingMode::QtTest));
    }
    Controller page(Cover cover = Cover::Covers)
    {
        return m_pages.emplace_back(make<ScriptPage>(m_world, cover));
    }
    Controller navigation()
    {
        const Controller root = page();
        m_navigations.push_back({make<UINavigationController>(root), {root}});
        test(*m_navigations.back().controller->pages());
        if (m_dice.once(2)) {
            m_navigations.back().controller->pages()->attachView();
        }
        return m_navigations.back().controller;
    }

    UIViewController::Completion counted()
    {
        m_completions.push_back(0);
        return [this, index = m_completions.size() - 1] {
            expect(++m_completions[index] == 1, u"a completion runs twice"_s);
            m_world.meanwhile();
        };
    }

    // The place of the presented controller that `page` is in; the end for none.
    Pages::iterator entryOf(const Controller &page)
    {
        for (const Navigation &each : m_navigations) {
            if (std::ranges::find(each.pages, page) == each.pages.end()) {
                continue;
            }
            const auto &tabs = m_tabs->viewControllers();
            const bool isTab = std::ranges::find(tabs, each.controller) != tabs.end();
            return std::ranges::find(m_presented, isTab ? Controller(m_tabs) : each.controller);
        }
        return std::ranges::find(m_presented, page);
    }

    void step()
    {
        static constexpr void (Script::*steps[])(bool animated) = {
            &Script::present, &Script::present,   &Script::dismiss, &Script::push,
            &Script::pop,     &Script::chooseTab, &Script::endOne,  &Script::endOne};
        ++m_depth;
        const bool animated = m_dice.below(4) > 0;
        (this->*m_dice.oneOf(steps))(animated);
        --m_depth;
    }

    void chooseTab(bool)
    {
        m_log.append(u"tab"_s);
        m_tabs->setSelectedIndex(m_dice.below(2));
    }

    void present(bool animated)
    {
        const Controller from = m_dice.oneOf(m_pages); // the list may grow meanwhile
        m_log.append(animated ? u"present"_s : u"present!"_s);
        const Controller shown = m_dice.once(3) ? navigation()
            : m_dice.once(2)                    ? page(Cover::Overlays)
            : m_dice.once(4)                    ? m_dice.oneOf(m_presented)
                                                : page();
        const bool isNew = std::ranges::find(m_presented, shown) == m_presented.end();
        if (entryOf(from) != m_presented.end() && isNew) {
            m_presented.push_back(shown);
        }
        from->presentViewController(shown, animated, counted());
    }

    void dismiss(bool animated)
    {
        const Controller page = m_dice.oneOf(m_pages);
        m_log.append(animated ? u"dismiss"_s : u"dismiss!"_s);
        const auto entry = entryOf(page);
        if (entry != m_presented.end() && entry + 1 != m_presented.end()) {
            m_presented.erase(entry + 1, m_presented.end());
        } else if (entry != m_presented.end() && entry != m_presented.begin()) {
            m_presented.erase(entry);
        }
        page->dismissViewControllerAnimated(animated, counted());
    }

    Navigation &anyNavigation()
    {
        return m_navigations[static_cast<std::size_t>(
            m_dice.below(static_cast<int>(m_navigations.size())))];
    }

    void push(bool animated)
    {
        m_log.append(animated ? u"push"_s : u"push!"_s);
        Navigation &navigation = anyNavigation();
        const auto controller = navigation.controller;
        const Controller pushed = page();
        navigation.pages.push_back(pushed);
        controller->pushViewController(pushed, animated);
    }

    void pop(bool animated)
    {
        Navigation &navigation = anyNavigation();
        const auto controller = navigation.controller;
        const bool toRoot = m_dice.once(3);
        m_log.append(toRoot ? u"pop all"_s : u"pop"_s);
        navigation.pages.resize(toRoot ? 1 : qMax<std::size_t>(1, navigation.pages.size() - 1));
        toRoot ? controller->popToRootViewControllerAnimated(animated)
               : controller->popViewControllerAnimated(animated);
    }

    std::vector<TransitionStack *> stacks()
    {
        std::vector<TransitionStack *> all{m_window->presentation()};
        for (const Navigation &each : m_navigations) {
            all.push_back(each.controller->pages());
        }
        return all;
    }

    static void end(TransitionStack &stack, int row)
    {
        const QVariant of = stack.index(row).data(TransitionStack::ControllerRole);
        const Controller kept = of.value<UIViewController *>()->shared_from_this();
        stack.transitionEnded(kept.get());
    }
    // Of any stack, and of a transition that has ended already as well.
    void endOne(bool)
    {
        m_log.append(u"ended"_s);
        TransitionStack &stack = *m_dice.oneOf(stacks());
        end(stack, m_dice.below(stack.rowCount()));
    }
    void endAll()
    {
        for (int times = 0; times < 3; ++times) { // an end may begin another
            for (TransitionStack *stack : stacks()) {
                for (int row = stack->rowCount() - 1; row >= 0; --row) {
                    end(*stack, row);
                }
            }
        }
    }

    void compare()
    {
        expect(m_window->presentation()->controllers() == m_presented, u"others are presented"_s);
        for (const Navigation &each : m_navigations) {
            expect(each.controller->viewControllers() == each.pages, u"others are pushed"_s);
        }
    }

    // Once every transition has ended, only visible controllers have appeared, and every
    // completion has run.
    void end()
    {
        endAll();
        compare();
        const auto covers = [](const Controller &each) { return each->cover() == Cover::Covers; };
        const auto base = std::find_if(m_presented.rbegin(), m_presented.rend(), covers);
        Pages seen(base.base() - 1, m_presented.end());
        const auto &tab =
            m_tabs->viewControllers()[static_cast<std::size_t>(m_tabs->selectedIndex())];
        if (seen.front() == m_tabs) {
            seen.push_back(tab);
        }
        for (const Navigation &each : m_navigations) {
            if (std::ranges::find(seen, each.controller) != seen.end()) {
                seen.push_back(each.pages.back());
            }
        }
        for (const Controller &each : m_pages) {
            const bool isSeen = std::ranges::find(seen, each) != seen.end();
            const auto state = isSeen ? AppearanceState::Appeared : AppearanceState::Disappeared;
            expect(each->appearanceState() == state, u"a page is in the wrong state"_s);
        }
        expect(std::ranges::count(m_completions, 1) == std::ssize(m_completions),
               u"a completion has not run"_s);
    }

    void tearDown()
    {
        m_testers.clear();
        m_presented.clear();
        m_navigations.clear();
        m_pages.clear();
        m_tabs.reset();
        m_window.reset();
        for (int i = 0; i < 3; ++i) { // a container's end releases its pages
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    RandomRuns::Dice m_dice;
    ScriptWorld m_world;
    QStringList m_log;
    std::unique_ptr<UIWindow> m_window = std::make_unique<UIWindow>();
    std::shared_ptr<UITabBarController> m_tabs;
    std::vector<Navigation> m_navigations;
    Pages m_pages; // every one that was made
    Pages m_presented; // as the rules have it
    std::vector<int> m_completions;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
    int m_depth = 0;
};

} // namespace

/// Random presenting, pushing and dismissing, at once and animated, from within the life cycle and
/// from completions too.
class RandomScripts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followTheRules()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s));
        RandomRuns::each(scripts, [](quint32 seed) { return Script(seed).run(); });
    }
};

WZT_TEST(RandomScripts)
#include "RandomScripts.moc"
