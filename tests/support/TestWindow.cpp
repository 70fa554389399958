// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestWindow.h"

#include "tests/support/TestApp.h"
#include "tests/support/WindowDriver.h"

#include <QAccessible>
#include <QIcon>
#include <QTest>

using namespace Qt::StringLiterals;

TestWindow::TestWindow(TestApp &app, const QSize &size, const DesktopAppearance &appearance)
{
    WindowDriver::beStrict();
    app.application().traits().setOverride(appearance);
    m_host = std::make_unique<DesktopWindow>(*app.delegate().window(), u"WZT Companion"_s, QIcon());
    view().resize(size);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowActive(&view()));
}

TestWindow::~TestWindow() = default;

void TestWindow::settle()
{
    WindowDriver::settle(view());
}

QQuickItem *TestWindow::drawing(const QObject *control)
{
    return WindowDriver::drawing(view(), control);
}

QRectF TestWindow::rect(const QObject *control)
{
    return WindowDriver::rect(drawing(control));
}

QAccessibleInterface *TestWindow::accessible(const QString &name)
{
    return WindowDriver::accessible(view(), name);
}

void TestWindow::tap(const QObject *control)
{
    WindowDriver::tap(view(), WindowDriver::centre(drawing(control)));
}

void TestWindow::tap(const QString &name)
{
    WindowDriver::tap(view(), view().mapFromGlobal(accessible(name)->rect().center()));
}

void TestWindow::key(Qt::Key key)
{
    QTest::keyClick(&view(), key);
}

void TestWindow::type(const QString &text)
{
    WindowDriver::type(view(), text);
}
