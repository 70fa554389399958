// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestWindow.h"

#include "tests/support/TestApp.h"

#include <QAccessible>
#include <QIcon>
#include <QPointingDevice>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void collectBelow(QQuickItem *item, const std::function<bool(QQuickItem *)> &wanted,
                  QList<QQuickItem *> &found)
{
    if (wanted(item))
        found.append(item);
    for (QQuickItem *child : item->childItems())
        collectBelow(child, wanted, found);
}

bool isSettled(const UITransitionStack &stack)
{
    for (int row = 0; row < stack.rowCount(); ++row) {
        const auto phase = stack.index(row).data(UITransitionStack::PhaseRole);
        if (phase.value<UITransitionStack::Phase>() != UITransitionStack::Phase::Settled)
            return false;
    }
    return true;
}

} // namespace

TestWindow::TestWindow(TestApp &app, const QSize &size, const UIAppearance &appearance) : m_app(app)
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QAccessible::setActive(true);
    app.application().traits().setOverride(appearance);
    m_host = std::make_unique<UIWindowHost>(*app.delegate().window(), u"WZT Companion"_s, QIcon());
    view().resize(size);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowActive(&view()));
}

TestWindow::~TestWindow() = default;

void TestWindow::settle()
{
    QTRY_VERIFY(isSettled(*m_app.delegate().window()->presentation()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QQuickItem *> TestWindow::collect(const std::function<bool(QQuickItem *)> &wanted)
{
    QList<QQuickItem *> found;
    collectBelow(view().contentItem(), wanted, found);
    return found;
}

QList<QQuickItem *> TestWindow::items(const QString &type)
{
    const QByteArray prefix = type.toLatin1() + "_QML";
    return collect([&](QQuickItem *item) {
        return item->isVisible() && QByteArray(item->metaObject()->className()).startsWith(prefix);
    });
}

QQuickItem *TestWindow::named(const QString &name)
{
    return collect([&](QQuickItem *item) { return item->objectName() == name; }).value(0);
}

QQuickItem *TestWindow::drawing(const QObject *control)
{
    return collect([&](QQuickItem *item) {
               return item->property("control").value<QObject *>() == control;
           })
        .value(0);
}

QRectF TestWindow::rect(const QQuickItem *item)
{
    return item->mapRectToScene(item->boundingRect());
}

void TestWindow::tap(const QQuickItem *item)
{
    static QPointingDevice *const screen = QTest::createTouchDevice();
    const QPoint point = rect(item).center().toPoint();
    QTest::touchEvent(&view(), screen).press(0, point, &view());
    QTest::touchEvent(&view(), screen).release(0, point, &view());
}

void TestWindow::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&view(), key, modifiers);
}

void TestWindow::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(&view(), character.toLatin1());
}
