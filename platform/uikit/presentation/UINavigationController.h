// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/UIViewController.h"

/// A stack of pages with a bar that shows the top page's title and the way back.
class UINavigationController : public UIViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "UIKit/UINavigationControllerView.qml")
    Q_PROPERTY(TransitionStack *pages READ pages CONSTANT FINAL)
    Q_PROPERTY(UIViewController *topViewController READ topViewController NOTIFY
                   topViewControllerChanged FINAL)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY topViewControllerChanged FINAL)
    Q_PROPERTY(QString backTitle READ backTitle NOTIFY topViewControllerChanged FINAL)

public:
    /// `rootViewController` is the page that stays.
    explicit UINavigationController(std::shared_ptr<UIViewController> rootViewController);
    ~UINavigationController() override;

    /// The pages, the root first; those on their way out are not among them.
    [[nodiscard]] std::vector<std::shared_ptr<UIViewController>> viewControllers() const;
    [[nodiscard]] UIViewController *topViewController() const { return m_pages.top(); }

    void pushViewController(std::shared_ptr<UIViewController> controller, bool animated);
    /// Takes the top page away; nothing when it is the root.
    void popViewControllerAnimated(bool animated);
    /// Takes all pages but the root away.
    void popToRootViewControllerAnimated(bool animated);

    [[nodiscard]] TransitionStack *pages() { return &m_pages; }
    [[nodiscard]] bool canGoBack() const;
    /// The title of the page below the top one; empty on the root.
    [[nodiscard]] QString backTitle() const;
    /// Acts as the back button. Returns whether there is a way back.
    Q_INVOKABLE bool goBack();
    /// Acts as Escape: goes back, or triggers a Cancel button in place of the back button, unless
    /// the page is not to be left lightly (`isModalInPresentation`). Returns whether it did either.
    Q_INVOKABLE bool escape();

Q_SIGNALS:
    void topViewControllerChanged();

protected:
    void appearanceStateDidChange(TransitionStack::Motion motion) override;

private:
    TransitionStack m_pages;
};
