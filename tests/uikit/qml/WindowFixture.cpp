// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/WindowFixture.h"

#include "platform/uikit/UINavigationItem.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QIcon>
#include <QQuickItem>
#include <QTest>

namespace {

void collect(QAccessibleInterface *interface, QStringList &found)
{
    const QString role = QVariant::fromValue(interface->role()).toString();
    found.append(role + u' ' + interface->text(QAccessible::Name));
    for (int i = 0; i < interface->childCount(); ++i)
        collect(interface->child(i), found);
}

} // namespace

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

WindowFixture::WindowFixture(const UIAppearance &appearance)
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QAccessible::setActive(true);
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
    if (presented)
        root->presentViewController(presented, false);
    host = std::make_unique<UIWindowHost>(*window, QStringLiteral("Test"), QIcon());
    host->view().resize(size);
    host->show();
    QVERIFY(QTest::qWaitForWindowActive(&host->view()));
}

void WindowFixture::settle()
{
    const auto settled = [this] {
        for (const QQuickItem *entry : items(QStringLiteral("UITransitionEntryView"))) {
            if (entry->property("phase").toInt() != int(UITransitionStack::Phase::Settled))
                return false;
        }
        return true;
    };
    QTRY_VERIFY(settled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QQuickItem *> WindowFixture::items(const QString &type) const
{
    return WindowDriver::items(host->view(), type);
}

QQuickItem *WindowFixture::named(const QString &name) const
{
    return WindowDriver::named(host->view(), name);
}

QRectF WindowFixture::rect(const QQuickItem *item)
{
    return WindowDriver::rect(item);
}

void WindowFixture::tap(const QQuickItem *item)
{
    WindowDriver::tap(host->view(), WindowDriver::centre(item));
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

QStringList WindowFixture::accessible() const
{
    QStringList found;
    collect(QAccessible::queryAccessibleInterface(&host->view()), found);
    return found.mid(1);
}
