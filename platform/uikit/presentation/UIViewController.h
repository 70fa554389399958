// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"
#include "platform/uikit/presentation/TransitionStack.h"

#include <QPointer>
#include <QUrl>

#include <functional>
#include <memory>

class UINavigationController;
class UINavigationItem;
class UITabBarItem;

/// A screen, or a container of screens. Made by `make`; a window or a container keeps it.
/// The file that draws it is named by its class: Q_CLASSINFO("view", "Screens/LoginView.qml"),
/// inherited by subclasses. The file's root has a `required property <class> controller`.
class UIViewController : public UIResponder, public std::enable_shared_from_this<UIViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(UIView *view READ view CONSTANT FINAL)
    Q_PROPERTY(UINavigationItem *navigationItem READ navigationItem CONSTANT FINAL)
    Q_PROPERTY(QUrl viewUrl READ viewUrl CONSTANT FINAL)

public:
    using Completion = std::function<void()>;

    UIViewController();
    ~UIViewController() override;

    /// The view that holds the others: its background and its tap recognisers.
    [[nodiscard]] virtual UIView *view() { return &m_view; }
    [[nodiscard]] UINavigationItem *navigationItem() const { return m_navigationItem.get(); }
    [[nodiscard]] UITabBarItem *tabBarItem() const { return m_tabBarItem.get(); }
    void setTabBarItem(std::unique_ptr<UITabBarItem> item);
    /// Where the file named by Q_CLASSINFO lies.
    [[nodiscard]] QUrl viewUrl() const;

    /// Runs `viewDidLoad`, unless it has run.
    Q_INVOKABLE void loadViewIfNeeded();

    // The life cycle; an override calls the base implementation first.
    /// Once, before the controller is first drawn or appears.
    virtual void viewDidLoad();
    /// Whenever the controller is about to be shown, before its transition begins.
    virtual void viewWillAppear(bool animated);
    /// Whenever the controller is shown, when the transition has ended.
    virtual void viewDidAppear(bool animated);
    /// Once the controller has gone from where it was presented or pushed, when the transition has
    /// ended. A completion that belongs to it alone has run by then.
    virtual void viewDidLeave();

    /// True if the user must not dismiss the presented controller by a gesture.
    [[nodiscard]] virtual bool isModalInPresentation() const { return false; }
    /// Whether the controller hides those that it is presented over.
    [[nodiscard]] virtual TransitionStack::Cover cover() const;

    /// Presents `controller` on top of the window, over alerts too. When this controller is
    /// leaving or not in a window, or `controller` is presented already, nothing is presented.
    /// `completion` runs in every case, when the transition has ended.
    void presentViewController(std::shared_ptr<UIViewController> controller, bool animated,
                               Completion completion = {});
    /// Takes away everything above this controller, or, when nothing is, the controller itself.
    /// Nothing happens to a controller that is leaving or gone, nor to the root. `completion`
    /// runs in every case, when the transition has ended.
    void dismissViewControllerAnimated(bool animated, Completion completion = {});
    /// The controller that this one, or the container it is in, is presented over; null for none.
    [[nodiscard]] UIViewController *presentingViewController() const;

    /// Pushes `controller` on the nearest navigation controller, or presents it where there is
    /// none.
    void showViewController(std::shared_ptr<UIViewController> controller);

    [[nodiscard]] UINavigationController *navigationController() const;

    [[nodiscard]] AppearanceState appearanceState() const { return m_appearance; }

protected:
    /// For a container: the appearance changed, the children follow.
    virtual void appearanceStateDidChange(TransitionStack::Motion motion);
    /// Whether the controller is presented, not leaving, and nothing is presented over it.
    [[nodiscard]] bool isOnTop() const;
    /// For a container: `child` is now part of this controller.
    void adopt(UIViewController &child) { child.m_parent = this; }
    static void beginAppearance(UIViewController &controller, TransitionStack::Motion motion);
    static void endAppearance(UIViewController &controller, TransitionStack::Motion motion);
    static void disappear(UIViewController &controller, TransitionStack::Motion motion);

private:
    friend class TransitionStack;
    friend class UIWindow;

    /// The entry of the window's stack that this controller is, or is inside of; null when it is
    /// in no window, or leaving.
    [[nodiscard]] const UIViewController *presentedEntry() const;

    UIView m_view;
    std::unique_ptr<UINavigationItem> m_navigationItem;
    std::unique_ptr<UITabBarItem> m_tabBarItem;
    QPointer<UIViewController> m_parent;
    QPointer<TransitionStack> m_stack;
    AppearanceState m_appearance = AppearanceState::Disappeared;
    bool m_viewLoaded = false;
};
