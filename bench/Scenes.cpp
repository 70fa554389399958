// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Scenes.h"

#include "app/WZTTabBarController.h"
#include "harness/Finger.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "sandbox/DemoIssues.h"
#include "screens/account/WZTUserViewController.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "screens/issues/WZTRootIssueViewController.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto email = u"jo@wzt.example"_s;

/// Long enough for any transition, and for a reply and its rows.
constexpr auto moment = 700ms;

void pushProjects(Stage &stage)
{
    auto *home = stage.delegate().rootVC()->navigationController();
    home->pushViewController(make<WZTRootIssueViewController>(), true);
    Stage::wait(moment);
}

void pop(Stage &stage)
{
    stage.delegate().rootVC()->navigationController()->popViewControllerAnimated(true);
    Stage::wait(moment);
}

/// The issues of the project at that place of the catalogue.
void presentIssues(Stage &stage, size_t project)
{
    auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().at(project));
    stage.delegate().rootVC()->presentViewController(make<UINavigationController>(issues), true);
    Stage::wait(moment);
}

void presentFewIssues(Stage &stage)
{
    presentIssues(stage, 1);
}

void presentManyIssues(Stage &stage)
{
    presentIssues(stage, 2);
    Stage::wait(moment);
}

void dismiss(Stage &stage)
{
    stage.delegate().tabController()->dismissViewControllerAnimated(true);
    Stage::wait(moment);
}

void showAccount(Stage &stage)
{
    stage.delegate().tabController()->setSelectedIndex(1);
    Stage::wait(moment);
}

void showHome(Stage &stage)
{
    stage.delegate().tabController()->setSelectedIndex(0);
    Stage::wait(moment);
}

void edit(Stage &stage)
{
    stage.delegate().userVC()->editProfile(nullptr);
    Stage::wait(moment);
}

void showAccountAndEdit(Stage &stage)
{
    showAccount(stage);
    edit(stage);
}

void flick(Stage &stage)
{
    for (int i = 0; i < 3; ++i) {
        stage.drag(700, 200, 80ms);
        Stage::wait(1s);
    }
}

void pullToRefresh(Stage &stage)
{
    stage.drag(300, 600, 300ms);
    Stage::wait(2 * moment);
}

void hideWhileEditing(Stage &stage)
{
    showAccountAndEdit(stage);
    stage.view().hide();
}

void nothing(Stage &) {}

} // namespace

Stage::Stage(bool isSignedIn)
{
    m_app.service().addAccount({.email = email, .name = u"Jo"_s}, u"secret"_s);
    m_app.service().addIssues(sandbox::demoIssues());
    if (isSignedIn) {
        m_app.keepUser(WZTUser(1, email, u"Jo"_s));
    }
    m_app.launch();
    m_host = std::make_unique<DesktopWindow>(*m_app.delegate().window(), QString(), QString());
    m_host->show();
    wait(moment);
}

void Stage::wait(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void Stage::drag(int fromY, int toY, std::chrono::milliseconds time)
{
    constexpr auto pace = 8ms;
    const int x = view().width() / 2;
    const auto steps = static_cast<int>(time / pace);
    QTest::touchEvent(&view(), Finger::screen()).press(0, {x, fromY}, &view());
    for (int step = 1; step <= steps; ++step) {
        wait(pace);
        const int y = fromY + (toY - fromY) * step / steps;
        QTest::touchEvent(&view(), Finger::screen()).move(0, {x, y}, &view());
    }
    QTest::touchEvent(&view(), Finger::screen()).release(0, {x, toY}, &view());
}

std::vector<Scene> allScenes()
{
    return {
        {"a page comes", nothing, pushProjects, pop},
        {"a page goes", pushProjects, pop, nothing},
        {"a modal comes, with three issues", nothing, presentFewIssues, dismiss},
        {"a modal goes", presentFewIssues, dismiss, nothing},
        {"a modal comes, with 2,000 issues", nothing, presentManyIssues, dismiss},
        {"2,000 issues are flicked through", presentManyIssues, flick, dismiss},
        {"an alert with fields comes", showAccount, edit, dismiss},
        {"an alert with fields goes", showAccountAndEdit, dismiss, nothing},
        {"a table is pulled to refresh", showAccount, pullToRefresh, showHome},
    };
}

std::vector<Rest> allRests()
{
    return {
        {"Login", false, true, nothing},
        {"Home", true, false, nothing},
        {"Account", true, false, showAccount},
        {"2,000 issues", true, false, presentManyIssues},
        {"an alert with a field", true, true, showAccountAndEdit},
        {"the same in a hidden window", true, false, hideWhileEditing},
    };
}
