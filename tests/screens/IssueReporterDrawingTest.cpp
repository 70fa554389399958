// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "screens/WZTIssueReporterViewController.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowDriver.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The issue reporter with a finger and a keyboard.
class IssueReporterDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anIssueIsReported()
    {
        TestApp app;
        app.keepUser(WZTUser(1, u"jo@wzt.example"_s, u"Jo"_s));
        app.launch();
        TestWindow window(app);
        const auto package = WZTPackage::allPackages().front();
        const auto form = make<WZTIssueReporterViewController>(package);
        app.delegate().tabController()->presentViewController(make<UINavigationController>(form),
                                                              true);
        window.settle();
        window.type(u"It crashes"_s);
        window.key(Qt::Key_Return);
        window.type(u"Every\rtime"_s);
        window.key(Qt::Key_Escape); // loses nothing
        WindowDriver::tap(window.view(),
                          WindowDriver::centre(
                              WindowDriver::items(window.view(), u"UIBarButtonItemView"_s).last()));
        QVERIFY(!app.application().firstResponder());
        QTRY_VERIFY(app.top<UIAlertController>());
        window.settle();
        const auto issues = app.service().issues(package->bundleIdentifier);
        QCOMPARE(issues.size(), 1);
        QCOMPARE(issues[0].title, u"It crashes"_s);
        QCOMPARE(issues[0].description, u"Every\ntime"_s);
        window.key(Qt::Key_Return); // the only action
        QTRY_VERIFY(app.top<WZTTabBarController>());
    }
};

WZT_TEST(IssueReporterDrawingTest)
#include "IssueReporterDrawingTest.moc"
