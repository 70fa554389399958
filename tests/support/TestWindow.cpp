// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestWindow.h"

#include "tests/support/TestApp.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QIcon>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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

void TestWindow::tap(const QObject *control)
{
    WindowDriver::tap(view(), WindowDriver::centre(WindowDriver::drawing(view(), control)));
}

void TestWindow::key(Qt::Key key)
{
    QTest::keyClick(&view(), key);
}

void TestWindow::type(const QString &text)
{
    WindowDriver::type(view(), text);
}
