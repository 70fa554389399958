// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/WindowDriver.h"

#include "platform/uikit/presentation/TransitionStack.h"

#include <QAccessible>
#include <QPointingDevice>
#include <QQmlExpression>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>

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
    // What is drawn last lies on top.
    for (int i = parent->childCount() - 1; i >= 0; --i) {
        if (QAccessibleInterface *found = findBelow(parent->child(i), name)) {
            return found;
        }
    }
    return nullptr;
}

void describe(QAccessibleInterface *parent, QStringList &found)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface *child = parent->child(i);
        const QString role = QVariant::fromValue(child->role()).toString();
        if (!child->state().invisible) {
            found.append(role + u' ' + child->text(QAccessible::Name));
        }
        describe(child, found);
    }
}

bool isSettled(const QQuickItem *entry)
{
    return entry->property("phase").toInt() == static_cast<int>(TransitionStack::Phase::Settled);
}

} // namespace

void WindowDriver::beStrict()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QAccessible::setActive(true);
}

void WindowDriver::settle(const QQuickWindow &window)
{
    const auto settled = [&] {
        const QList<QQuickItem *> entries = items(window, u"TransitionEntryView"_s);
        return std::all_of(entries.begin(), entries.end(), isSettled);
    };
    QTRY_VERIFY(settled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QQuickItem *> WindowDriver::items(const QQuickWindow &window, const QString &type)
{
    const QByteArray name = type.toLatin1();
    const QByteArray prefix = name + "_QML";
    return collect(window.contentItem(), [&](const QQuickItem *item) {
        const QByteArrayView itemType = item->metaObject()->className();
        return itemType == name || itemType.startsWith(prefix);
    });
}

QQuickItem *WindowDriver::named(const QQuickWindow &window, const QString &name)
{
    return named(window.contentItem(), name);
}

QQuickItem *WindowDriver::named(QQuickItem *item, const QString &name)
{
    return collect(item, [&](const QQuickItem *each) { return each->objectName() == name; })
        .value(0);
}

QQuickItem *WindowDriver::drawing(const QQuickWindow &window, const QObject *control)
{
    return collect(window.contentItem(),
                   [&](const QQuickItem *item) {
                       return item->property("control").value<QObject *>() == control;
                   })
        .value(0);
}

QAccessibleInterface *WindowDriver::accessible(QQuickWindow &window, const QString &name)
{
    return findBelow(QAccessible::queryAccessibleInterface(&window), name);
}

QStringList WindowDriver::accessible(QQuickWindow &window)
{
    QStringList found;
    describe(QAccessible::queryAccessibleInterface(&window), found);
    return found;
}

QRectF WindowDriver::rect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QPoint WindowDriver::centre(const QQuickItem *item)
{
    return rect(item).center().toPoint();
}

void WindowDriver::showKeyboard(QQuickView &view, double height)
{
    const QString place = u"Metrics.keyboard = Qt.rect(0, %1, %2, %3)"_s;
    QObject *root = view.rootObject();
    QQmlExpression(qmlContext(root), root,
                   place.arg(view.height() - height).arg(view.width()).arg(height))
        .evaluate();
}

QPointingDevice *WindowDriver::screen()
{
    static QPointingDevice *const screen = QTest::createTouchDevice();
    return screen;
}

void WindowDriver::tap(QQuickWindow &window, const QPoint &point)
{
    QTest::touchEvent(&window, screen()).press(0, point, &window);
    QTest::touchEvent(&window, screen()).release(0, point, &window);
}

void WindowDriver::type(QQuickWindow &window, const QString &text)
{
    for (const QChar character : text) {
        QTest::keyClick(&window, character.toLatin1());
    }
}

WindowDriver::Finger::Finger(QQuickWindow &window, const QPoint &at) : m_window(window), m_at(at)
{
    QTest::touchEvent(&window, screen()).press(0, at, &window);
}

void WindowDriver::Finger::move(const QPoint &to)
{
    const QPoint from = m_at;
    const int steps = qMax(1, (to - from).manhattanLength() / 12);
    for (int step = 1; step <= steps; ++step) {
        m_at = from + (to - from) * step / steps;
        QTest::qWait(5);
        QTest::touchEvent(&m_window, screen()).move(0, m_at, &m_window);
        m_window.grabWindow(); // moves are delivered with a frame
    }
}

void WindowDriver::Finger::lift()
{
    QTest::touchEvent(&m_window, screen()).release(0, m_at, &m_window);
}
