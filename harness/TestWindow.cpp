// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestWindow.h"

#include "harness/TestRunner.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/presentation/DesktopWindow.h"
#include "platform/uikit/presentation/TransitionStack.h"
#include "platform/uikit/presentation/UIWindow.h"

#include <QAccessible>
#include <QQmlExpression>
#include <QRegularExpression>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Wanted = std::function<bool(const QQuickItem *)>;

QList<QQuickItem *> collect(QQuickItem *item, const Wanted &wanted)
{
    QList<QQuickItem *> found;
    if (wanted(item)) {
        found.append(item);
    }
    for (QQuickItem *child : item->childItems()) {
        found += collect(child, wanted);
    }
    return found;
}

QAccessibleInterface *findBelow(QAccessibleInterface *parent, const QString &name)
{
    if (!parent || parent->state().invisible) {
        return nullptr;
    }
    if (parent->text(QAccessible::Name) == name) {
        return parent;
    }
    // The last item is drawn on top.
    for (int i = parent->childCount() - 1; i >= 0; --i) {
        if (QAccessibleInterface *found = findBelow(parent->child(i), name)) {
            return found;
        }
    }
    return nullptr;
}

void collect(const QAccessibleInterface *parent, QList<QAccessibleInterface *> &found)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface *child = parent->child(i);
        if (!child->state().invisible) {
            found.append(child);
        }
        collect(child, found);
    }
}

bool isSettled(const QQuickItem *entry)
{
    return entry->property("phase").toInt() == static_cast<int>(TransitionStack::Phase::Settled);
}

} // namespace

TestWindow::TestWindow() = default;

TestWindow::TestWindow(QQuickView &view) : m_view(&view) {}

TestWindow::~TestWindow()
{
    close();
}

void TestWindow::beStrict()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QAccessible::setActive(true);
}

void TestWindow::open(UIWindow &window, const QSize &size, const DesktopAppearance &appearance)
{
    beStrict();
    UIApplication::sharedApplication()->traits().setOverride(appearance);
    m_host = std::make_unique<DesktopWindow>(window, u"Test"_s, QString());
    m_view = &m_host->view();
    m_view->resize(size);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowActive(m_view, TestRunner::patience));
}

void TestWindow::close()
{
    if (m_host) {
        // The software renderer frees a picture in the frame after the one that had it last.
        m_view->setSource(QUrl());
        m_view->releaseResources();
        m_view->grabWindow();
    }
    m_host.reset();
}

void TestWindow::settle() const
{
    const auto settled = [this] {
        return std::ranges::all_of(items(u"TransitionEntryView"_s), isSettled);
    };
    QTRY_VERIFY(settled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QQuickItem *> TestWindow::items(const QString &type) const
{
    const QByteArray name = type.toLatin1();
    const QByteArray prefix = name + "_QML";
    return collect(m_view->contentItem(), [&](const QQuickItem *item) {
        const QByteArrayView itemType = item->metaObject()->className();
        return itemType == name || itemType.startsWith(prefix);
    });
}

QQuickItem *TestWindow::named(const QString &name) const
{
    return named(m_view->contentItem(), name);
}

QQuickItem *TestWindow::named(QQuickItem *item, const QString &name)
{
    return collect(item, [&](const QQuickItem *each) { return each->objectName() == name; })
        .value(0);
}

QQuickItem *TestWindow::drawing(const QObject *control) const
{
    const auto draws = [control](const QQuickItem *item) {
        return item->property("control").value<QObject *>() == control;
    };
    return collect(m_view->contentItem(), draws).value(0);
}

QAccessibleInterface *TestWindow::accessible(const QString &name) const
{
    return findBelow(QAccessible::queryAccessibleInterface(m_view), name);
}

QList<QAccessibleInterface *> TestWindow::accessibleItems() const
{
    QList<QAccessibleInterface *> found;
    collect(QAccessible::queryAccessibleInterface(m_view), found);
    return found;
}

QStringList TestWindow::accessible() const
{
    QStringList found;
    for (const QAccessibleInterface *item : accessibleItems()) {
        const QString role = QVariant::fromValue(item->role()).toString();
        found.append(role + u' ' + item->text(QAccessible::Name));
    }
    return found;
}

QString TestWindow::focused() const
{
    QQuickItem *focus = m_view->activeFocusItem();
    QAccessibleInterface *item = QAccessible::queryAccessibleInterface(focus);
    return item                                  ? item->text(QAccessible::Name)
        : focus && focus->inherits("FocusGroup") ? u"rows"_s
                                                 : QString();
}

QRectF TestWindow::rect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QRectF TestWindow::rect(const QString &name) const
{
    const QRect found = accessible(name)->rect();
    return QRect(m_view->mapFromGlobal(found.topLeft()), found.size());
}

void TestWindow::tap(const QPoint &point) const
{
    Finger(*m_view, point).lift();
}

void TestWindow::drag(const QPoint &from, const QPoint &to) const
{
    Finger finger(*m_view, from);
    finger.move(to);
    finger.lift();
}

void TestWindow::press(const QString &name) const
{
    accessible(name)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void TestWindow::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_view, key, modifiers);
}

void TestWindow::keys(const QList<Qt::Key> &keys) const
{
    for (const Qt::Key each : keys) {
        key(each);
    }
}

void TestWindow::hold(Qt::Key key) const
{
    QTest::keyPress(m_view, key);
    for (int i = 0; i < 3; ++i) {
        const QString text = key == Qt::Key_Return ? u"\r"_s : QString();
        QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QCoreApplication::sendEvent(m_view, &repeat);
        settle();
    }
    QTest::keyRelease(m_view, key);
}

void TestWindow::type(const QString &text) const
{
    for (const QChar character : text) {
        QTest::keyClick(m_view, character.toLatin1());
    }
}

void TestWindow::showKeyboard(double height) const
{
    const QString place = u"Metrics.keyboard = Qt.rect(0, %1, %2, %3)"_s;
    QObject *root = m_view->rootObject();
    QQmlExpression(qmlContext(root), root,
                   place.arg(m_view->height() - height).arg(m_view->width()).arg(height))
        .evaluate();
}
