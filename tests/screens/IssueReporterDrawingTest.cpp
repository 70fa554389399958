// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "screens/WZTIssueReporterViewController.h"
#include "screens/WZTPackageIssuesViewController.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// Jo looks at the issues of the first project, of which there are none.
struct Stage {
    Stage()
    {
        app.keepUser(WZTUser(1, u"jo@wzt.example"_s, u"Jo"_s));
        app.launch();
        window.emplace(app, QSize(390, 844), UIAppearance{.reduceMotion = true});
        app.delegate().tabController()->presentViewController(make<UINavigationController>(screen),
                                                              true);
        window->settle();
    }

    [[nodiscard]] QAccessibleInterface *accessible(const QString &name)
    {
        return WindowDriver::accessible(window->view(), name);
    }

    TestApp app;
    std::optional<TestWindow> window;
    std::shared_ptr<WZTPackage> package = WZTPackage::allPackages().front();
    std::shared_ptr<WZTPackageIssuesViewController> screen =
        make<WZTPackageIssuesViewController>(package);
};

// A person's way to press the button of that name.
using Manner = std::tuple<const char *, void (*)(Stage &, const QString &)>;

void touch(Stage &stage, const QString &name)
{
    QQuickView &view = stage.window->view();
    WindowDriver::tap(view, view.mapFromGlobal(stage.accessible(name)->rect().center()));
}

void keys(Stage &stage, const QString &name)
{
    const auto focused = [&] {
        const QQuickItem *item = stage.window->view().activeFocusItem();
        return stage.accessible(name)->object() == item;
    };
    for (int i = 0; i < 8 && !focused(); ++i)
        stage.window->key(Qt::Key_Tab);
    stage.window->key(Qt::Key_Space);
}

void screenReader(Stage &stage, const QString &name)
{
    stage.accessible(name)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

/// The issue reporter in a window, from the issues and back to them.
class IssueReporterDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anIssueIsReported_data()
    {
        addCases<Manner>({{"touch", touch}, {"keyboard", keys}, {"screen reader", screenReader}});
    }

    void anIssueIsReported()
    {
        const auto press = std::get<1>(currentCase<Manner>());
        Stage stage;
        press(stage, u"Add"_s);
        stage.window->settle();
        stage.window->type(u"It crashes"_s);
        stage.window->key(Qt::Key_Return);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(&stage.window->view(), &held); // writes no line
        stage.window->type(u"Every\rtime"_s);
        stage.window->key(Qt::Key_Escape); // loses nothing
        press(stage, u"Submit"_s);
        QTRY_VERIFY(stage.accessible(u"Submission Success"_s));
        QVERIFY(!stage.app.application().firstResponder());
        stage.window->settle();
        QVERIFY2(!stage.accessible(u"Submit"_s), "what an alert blocks is read out");
        press(stage, u"Dismiss"_s);
        QTRY_VERIFY(stage.accessible(u"Pintle Issues"_s));
        QTRY_VERIFY(stage.accessible(u"It crashes, Every\ntime"_s));
        QCOMPARE(stage.accessible(u"It crashes, Every\ntime"_s)->text(QAccessible::Description),
                 u"1 of 1"_s);
        QCOMPARE(stage.app.service().issues(stage.package->bundleIdentifier).value(0).reporter, 1);
    }

    void aClosedFormDiesWithWhatDrewIt()
    {
        Stage stage;
        const QObject *root = stage.window->view().contentItem();
        std::vector<QPointer<QObject>> closed;
        qsizetype items = 0;
        for (int i = 0; i < 500; ++i) {
            const auto form = make<WZTIssueReporterViewController>(stage.package);
            const auto navigation = make<UINavigationController>(form);
            closed.insert(closed.end(), {navigation.get(), form.get()});
            stage.screen->presentViewController(navigation, false);
            stage.window->type(u"x"_s);
            if (i % 100 == 0) { // the reply finds the form gone
                QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Query Items: "_s));
                form->submitPressed(nullptr);
            }
            form->dismissViewControllerAnimated(false);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (i == 10)
                items = root->findChildren<QObject *>().size();
        }
        const auto alive = [&] {
            return std::count_if(closed.begin(), closed.end(),
                                 [](const auto &controller) { return !controller.isNull(); });
        };
        QTRY_COMPARE(alive(), 0);
        QCOMPARE(root->findChildren<QObject *>().size(), items);
        QVERIFY(!stage.app.top<UIAlertController>());
    }
};

WZT_TEST(IssueReporterDrawingTest)
#include "IssueReporterDrawingTest.moc"
