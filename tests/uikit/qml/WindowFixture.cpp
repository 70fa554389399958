// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/WindowFixture.h"

#include "platform/uikit/bars/UINavigationItem.h"

#include <QAccessible>
#include <QIcon>
#include <QTest>

TestPage::TestPage(const QString &title)
{
    navigationItem()->setTitle(title);
}

UIViewController::Completion TestPage::counted()
{
    return [this] { ++completed; };
}

void TestPage::viewDidAppear(bool animated)
{
    UIViewController::viewDidAppear(animated);
    ++appeared;
}

WindowFixture::WindowFixture(const DesktopAppearance &appearance)
{
    WindowDriver::beStrict();
    application.traits().setOverride(appearance);
}

WindowFixture::~WindowFixture()
{
    if (host) {
        // The software renderer frees a picture in the frame after the one that had it last.
        host->view().setSource(QUrl());
        host->view().releaseResources();
        host->view().grabWindow();
    }
    host.reset();
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowFixture::show(const std::shared_ptr<UIViewController> &root,
                         const std::shared_ptr<UIViewController> &presented, const QSize &size)
{
    window->makeKeyAndVisible();
    window->setRootViewController(root);
    if (presented) {
        root->presentViewController(presented, false);
    }
    host = std::make_unique<DesktopWindow>(*window, QStringLiteral("Test"), QIcon());
    host->view().resize(size);
    host->show();
    QVERIFY(QTest::qWaitForWindowActive(&host->view()));
}

void WindowFixture::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&host->view(), key, modifiers);
}

QString WindowFixture::focused() const
{
    QAccessibleInterface *interface =
        QAccessible::queryAccessibleInterface(host->view().activeFocusItem());
    return interface ? interface->text(QAccessible::Name) : QString();
}
