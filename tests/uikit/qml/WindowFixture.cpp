// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/WindowFixture.h"

#include "platform/uikit/UINavigationItem.h"

#include <QAccessible>
#include <QIcon>
#include <QPointingDevice>
#include <QQuickItem>
#include <QTest>

namespace {

void collect(QQuickItem *item, const std::function<bool(QQuickItem *)> &wanted,
             QList<QQuickItem *> &found)
{
    if (wanted(item))
        found.append(item);
    for (QQuickItem *child : item->childItems())
        collect(child, wanted, found);
}

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
    QList<QQuickItem *> found;
    const QByteArray prefix = type.toLatin1() + "_QML";
    collect(
        host->view().contentItem(),
        [&](QQuickItem *item) {
            return QByteArray(item->metaObject()->className()).startsWith(prefix);
        },
        found);
    return found;
}

QQuickItem *WindowFixture::named(const QString &name) const
{
    QList<QQuickItem *> found;
    collect(
        host->view().contentItem(), [&](QQuickItem *item) { return item->objectName() == name; },
        found);
    return found.value(0);
}

QRectF WindowFixture::rect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

void WindowFixture::tap(const QQuickItem *item)
{
    static QPointingDevice *const screen = QTest::createTouchDevice();
    const QPoint point = rect(item).center().toPoint();
    QTest::touchEvent(&host->view(), screen).press(0, point, &host->view());
    QTest::touchEvent(&host->view(), screen).release(0, point, &host->view());
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
