// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/bars/UITabBar.h"
#include "platform/uikit/presentation/UIViewController.h"

/// Controllers side by side, one of them shown, chosen by the tab bar below it.
class UITabBarController : public UIViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "UIKit/UITabBarControllerView.qml")
    Q_PROPERTY(UITabBar *tabBar READ tabBar CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<UIViewController> viewControllers READ viewControllerList NOTIFY
                   viewControllersChanged FINAL)

public:
    UITabBarController();
    ~UITabBarController() override;

    [[nodiscard]] UITabBar *tabBar() { return &m_tabBar; }

    [[nodiscard]] const std::vector<std::shared_ptr<UIViewController>> &viewControllers() const
    {
        return m_viewControllers;
    }
    /// Sets the tabs, left to right; each shows the tab bar item of its controller, or, for a
    /// navigation controller, that of its first page. The first is selected.
    void setViewControllers(std::vector<std::shared_ptr<UIViewController>> controllers);

    [[nodiscard]] int selectedIndex() const { return m_tabBar.selectedIndex(); }
    /// Shows another tab. Not told to `didSelectItem`. Indices outside the tabs are ignored.
    void setSelectedIndex(int index);

    /// The user chose a tab: called once for every choice, the selected tab included.
    virtual void didSelectItem(UITabBarItem *) {}

Q_SIGNALS:
    void viewControllersChanged();

protected:
    void appearanceStateDidChange(TransitionStack::Motion motion) override;

private:
    void itemChosen(int index);
    [[nodiscard]] QQmlListProperty<UIViewController> viewControllerList();

    UITabBar m_tabBar;
    std::vector<std::shared_ptr<UIViewController>> m_viewControllers;
};
