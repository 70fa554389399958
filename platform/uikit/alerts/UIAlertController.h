// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/alerts/UIAlertAction.h"
#include "platform/uikit/presentation/UIViewController.h"
#include "platform/uikit/text/UITextField.h"

#include <QQmlListProperty>

/// An alert: title, message, text fields one below the other, and actions. Any action dismisses
/// it, animated; the action's handler runs when the alert has gone, and not at all when the alert
/// is taken away otherwise. A handler must not hold its own alert strongly. The text of secure
/// fields is overwritten after the handler.
class UIAlertController : public UIViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_CLASSINFO("view", "UIKit/UIAlertControllerView.qml")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<UIAlertAction> actions READ actionList CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<UITextField> textFields READ textFieldList CONSTANT FINAL)

public:
    /// `message` is empty for an alert without one.
    UIAlertController(const QString &title, const QString &message);
    ~UIAlertController() override;

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QString message() const { return m_message; }

    void addAction(const QString &title, UIAlertAction::Style style,
                   UIAlertAction::Handler handler = {});
    /// `configure` sets the new field up.
    void addTextFieldWithConfigurationHandler(const std::function<void(UITextField &)> &configure);

    /// In the order they were added.
    [[nodiscard]] const std::vector<std::unique_ptr<UIAlertAction>> &actions() const
    {
        return m_actions;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<UITextField>> &textFields() const
    {
        return m_textFields;
    }

    /// Acts as the button of that action, unless the alert is covered or leaving.
    Q_INVOKABLE void trigger(UIAlertAction *action);
    /// Return: the only action, or else the first of the default style. In a field before the last
    /// one Return moves to the next field instead.
    Q_INVOKABLE void triggerDefault();
    /// Escape: the action of the cancel style, if there is one.
    Q_INVOKABLE void triggerCancel();

    [[nodiscard]] TransitionStack::Cover cover() const override;
    void viewWillAppear(bool animated) override;
    void viewDidLeave() override;

private:
    [[nodiscard]] QQmlListProperty<UIAlertAction> actionList();
    [[nodiscard]] QQmlListProperty<UITextField> textFieldList();
    void triggerStyle(UIAlertAction::Style style);
    void fieldReturned(UIControl *sender);

    QString m_title;
    QString m_message;
    std::vector<std::unique_ptr<UIAlertAction>> m_actions;
    std::vector<std::unique_ptr<UITextField>> m_textFields;
};
