// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UITabBarController.h"
#include "platform/uikit/presentation/UIWindow.h"

#include <QAbstractItemModelTester>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Writes down its life: "Al" A loads, "Aw" A will appear, "Ad" it did.
class Page : public UIViewController {
public:
    inline static int living = 0;

    Page(const QString &name, QStringList &log) : m_name(name), m_log(log)
    {
        navigationItem()->setTitle(name);
        ++living;
    }
    ~Page() override { --living; }

    void viewDidLoad() override { m_log.append(m_name + u'l'); }
    void viewWillAppear(bool) override { m_log.append(m_name + u'w'); }
    void viewDidAppear(bool) override
    {
        m_log.append(m_name + u'd');
        if (onDidAppear) {
            onDidAppear();
        }
    }
    [[nodiscard]] TransitionStack::Cover cover() const override
    {
        // Lower case names are alerts.
        return m_name.front().isLower() ? TransitionStack::Cover::Overlays
                                        : TransitionStack::Cover::Covers;
    }

    std::function<void()> onDidAppear;

private:
    QString m_name;
    QStringList &m_log;
};

/// A window with the root R and, by name, any controller that a script speaks of.
class Stage {
public:
    QStringList log;
    UIWindow window;
    std::map<QString, std::shared_ptr<Page>> pages;
    QAbstractItemModelTester tester{window.presentation()};

    Stage()
    {
        window.makeKeyAndVisible();
        window.setRootViewController(page(u"R"_s));
        log.clear();
    }

    std::shared_ptr<Page> page(const QString &name)
    {
        auto &page = pages[name];
        if (!page) {
            page = make<Page>(name, log);
        }
        return page;
    }

    /// One step: "R+A" R presents A, "R+!A" at once, "-A" A dismisses, "-!A" at once, "A." the
    /// transition of A has ended. A completion writes the step in brackets.
    void run(const QString &step)
    {
        const auto done = [this, step] { log.append(u"["_s + step + u"]"_s); };
        const bool animated = !step.contains(u'!');
        const QString names = QString(step).remove(u'!');
        if (names.endsWith(u'.')) {
            window.presentation()->transitionEnded(page(names.chopped(1)).get());
        } else if (names.startsWith(u'-')) {
            page(names.mid(1))->dismissViewControllerAnimated(animated, done);
        } else {
            page(names.section(u'+', 0, 0))
                ->presentViewController(page(names.section(u'+', 1)), animated, done);
        }
    }

    [[nodiscard]] QString present()
    {
        QString names;
        for (const auto &controller : window.presentation()->controllers()) {
            names += controller->navigationItem()->title();
        }
        return names;
    }
};

using Script = std::tuple<const char *, bool, const char *, const char *, const char *>;

} // namespace

class TransitionStackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QTRY_COMPARE(Page::living, 0); }

    void operationsAgainstPhases_data()
    {
        addCases<Script>({
            {"not drawn: settles at once", false, "R+A", "Al Aw Ad [R+A]", "RA"},
            {"drawn but not animated", true, "R+!A", "Al Aw Ad [R+!A]", "RA"},
            {"ended twice counts once", true, "R+A A. A.", "Al Aw Ad [R+A]", "RA"},
            {"uncovered appears again", true, "R+!A -A A.", "Al Aw Ad [R+!A] Rw Rd [-A]", "R"},
            {"an alert covers nothing", true, "R+a a. -a a.", "al aw ad [R+a] [-a]", "R"},
            {"a second alert covers the first", false, "R+a R+b -b",
             "al aw ad [R+a] bl bw bd [R+b] [-b]", "Ra"},
            {"present goes over alerts", false, "R+a R+A", "al aw ad [R+a] Al Aw Ad [R+A]", "RaA"},
            {"dismiss on the presenter takes all above", false, "R+A A+a A+B -R",
             "Al Aw Ad [R+A] al aw ad [A+a] Bl Bw Bd [A+B] Rw Rd [-R]", "R"},
            {"dismiss on a covered one keeps it", false, "R+A A+a -A",
             "Al Aw Ad [R+A] al aw ad [A+a] [-A]", "RA"},
            {"completion waits for the last to leave", true, "R+!A A+!a -R A. a.",
             "Al Aw Ad [R+!A] al aw ad [A+!a] Rw Rd [-R]", "R"},
            {"dismiss while entering", true, "R+A -A A.", "Al Aw Rw Rd [R+A] [-A]", "R"},
            {"present while one leaves", true, "R+!A -A R+B A. B.",
             "Al Aw Ad [R+!A] Rw Bl Bw [-A] Bd [R+B]", "RB"},
            {"dismiss on one leaving does nothing", true, "R+!A -A -A A.",
             "Al Aw Ad [R+!A] Rw [-A] Rd [-A]", "R"},
            {"present from one leaving does nothing", true, "R+!A -A A+B A.",
             "Al Aw Ad [R+!A] Rw [A+B] Rd [-A]", "R"},
            {"present from one gone does nothing", false, "R+A -A A+B",
             "Al Aw Ad [R+A] Rw Rd [-A] [A+B]", "R"},
            {"present what is present does nothing", false, "R+A A+A", "Al Aw Ad [R+A] [A+A]",
             "RA"},
            {"the root stays", false, "-R", "[-R]", "R"},
            {"presented again loads once", false, "R+A -A R+A",
             "Al Aw Ad [R+A] Rw Rd [-A] Aw Ad [R+A]", "RA"},
        });
    }

    void operationsAgainstPhases()
    {
        const auto &[name, drawn, script, events, present] = currentCase<Script>();
        Stage stage;
        if (drawn) {
            stage.window.presentation()->attachView();
        }
        for (const QString &step : QString::fromLatin1(script).split(u' ')) {
            stage.run(step);
        }
        QCOMPARE(stage.log.join(u' '), QLatin1String(events));
        QCOMPARE(stage.present(), QLatin1String(present));
    }

    void lifeCycleMayChangeTheStack()
    {
        Stage stage;
        stage.page(u"A"_s)->onDidAppear = [&] {
            stage.page(u"A"_s)->onDidAppear = nullptr;
            stage.run(u"A+B"_s);
            stage.run(u"-R"_s);
        };
        stage.run(u"R+A"_s);
        QCOMPARE(stage.present(), u"R"_s);
        QCOMPARE(stage.page(u"R"_s)->appearanceState(), AppearanceState::Appeared);
        QCOMPARE(stage.page(u"A"_s)->appearanceState(), AppearanceState::Disappeared);
        QCOMPARE(stage.log.count(u"[R+A]"_s), 1);
    }

    void navigationPushesAndPops()
    {
        Stage stage;
        const auto home = stage.page(u"H"_s);
        const auto last = stage.page(u"Q"_s);
        const auto navigation = make<UINavigationController>(home);
        stage.page(u"R"_s)->presentViewController(navigation, false);
        home->showViewController(stage.page(u"P"_s));
        stage.page(u"P"_s)->showViewController(last);
        QCOMPARE(navigation->topViewController(), last.get());
        navigation->goBack();
        QCOMPARE(last->navigationController(), nullptr);
        last->presentViewController(stage.page(u"B"_s), false); // gone: nothing
        navigation->pages()->attachView(); // from here on leaving takes time
        navigation->popToRootViewControllerAnimated(true);
        stage.run(u"P+C"_s); // leaving: only the completion runs
        navigation->pages()->detachView();
        navigation->goBack(); // the root stays
        QCOMPARE(stage.log.join(u' '), u"Hl Hw Hd Pl Pw Pd Ql Qw Qd Pw Pd Hw [P+C] Hd"_s);
        home->dismissViewControllerAnimated(false); // a page dismisses its container
        QCOMPARE(stage.present(), u"R"_s);
    }

    void tabsAppearOneAtATime()
    {
        Stage stage;
        const auto tabs = make<UITabBarController>();
        const auto home = stage.page(u"H"_s);
        const auto navigation = make<UINavigationController>(home);
        tabs->setViewControllers({navigation, make<UINavigationController>(stage.page(u"A"_s))});
        stage.page(u"R"_s)->presentViewController(tabs, false);
        tabs->setSelectedIndex(1);
        tabs->setSelectedIndex(5); // there is none
        tabs->tabBar()->choose(0);
        home->showViewController(stage.page(u"P"_s));
        tabs->tabBar()->choose(0); // the selected tab: back to its first page
        QCOMPARE(navigation->topViewController(), home.get());
        QCOMPARE(stage.log.join(u' '), u"Hl Hw Hd Al Aw Ad Hw Hd Pl Pw Pd Hw Hd"_s);
    }
};

WZT_TEST(TransitionStackTest)
#include "TransitionStackTest.moc"
