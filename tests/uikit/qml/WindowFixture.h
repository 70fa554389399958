// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/presentation/DesktopWindow.h"
#include "platform/uikit/presentation/UIViewController.h"
#include "platform/uikit/presentation/UIWindow.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/WindowDriver.h"

/// A page that writes down what it is told and what is counted for it.
class TestPage : public UIViewController {
    Q_OBJECT
    Q_CLASSINFO("view", "Test/TestPage.qml")

public:
    explicit TestPage(const QString &title = {});

    int appeared = 0;
    /// How many of the completions made by `counted` have run.
    int completed = 0;

    [[nodiscard]] Completion counted();
    void viewDidAppear(bool animated) override;
};

/// An application with a shown window; anything that QML complains about fails the test.
class WindowFixture {
public:
    explicit WindowFixture(const DesktopAppearance &appearance = {});
    ~WindowFixture();

    RecordingHost machine;
    UIApplication application{machine};
    std::unique_ptr<UIWindow> window = std::make_unique<UIWindow>();
    std::unique_ptr<DesktopWindow> host;

    /// Shows a window of that size: `root`, and over it, not animated, `presented` if there is one.
    void show(const std::shared_ptr<UIViewController> &root,
              const std::shared_ptr<UIViewController> &presented = {},
              const QSize &size = {390, 844});
    void settle() { WindowDriver::settle(host->view()); }

    /// As WindowDriver has them.
    [[nodiscard]] QList<QQuickItem *> items(const QString &type) const
    {
        return WindowDriver::items(host->view(), type);
    }
    [[nodiscard]] QQuickItem *item(const QString &type) const { return items(type).value(0); }
    [[nodiscard]] QQuickItem *named(const QString &name) const
    {
        return WindowDriver::named(host->view(), name);
    }
    [[nodiscard]] static QRectF rect(const QQuickItem *item) { return WindowDriver::rect(item); }
    [[nodiscard]] QStringList accessible() const { return WindowDriver::accessible(host->view()); }

    void tap(const QQuickItem *item)
    {
        WindowDriver::tap(host->view(), WindowDriver::centre(item));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The title of the page, the alert's field or the button that has the keyboard.
    [[nodiscard]] QString focused() const;
};
