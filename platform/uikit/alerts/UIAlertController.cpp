// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/alerts/UIAlertController.h"

#include "platform/uikit/base/ListProperty.h"

#include <algorithm>

UIAlertController::UIAlertController(const QString &title, const QString &message)
    : m_title(title), m_message(message)
{
}

UIAlertController::~UIAlertController() = default;

TransitionStack::Cover UIAlertController::cover() const
{
    return TransitionStack::Cover::Overlays;
}

void UIAlertController::addAction(const QString &title, UIAlertAction::Style style,
                                  UIAlertAction::Handler handler)
{
    m_actions.push_back(std::make_unique<UIAlertAction>(title, style, std::move(handler)));
}

void UIAlertController::addTextFieldWithConfigurationHandler(
    const std::function<void(UITextField &)> &configure)
{
    auto &field = m_textFields.emplace_back(std::make_unique<UITextField>());
    field->addTarget(this, &UIAlertController::fieldReturned, UIControlEvent::EditingDidEndOnExit);
    configure(*field);
}

void UIAlertController::viewWillAppear(bool animated)
{
    UIViewController::viewWillAppear(animated);
    if (!m_textFields.empty()) {
        m_textFields.front()->becomeFirstResponder();
    }
}

void UIAlertController::viewDidLeave()
{
    UIViewController::viewDidLeave();
    for (const auto &field : m_textFields) {
        if (field->isSecureTextEntry()) {
            field->erase();
        }
    }
}

void UIAlertController::trigger(UIAlertAction *action)
{
    if (!isOnTop()) {
        return;
    }
    UIAlertAction::Handler handler = std::move(action->m_handler);
    for (const auto &other : m_actions) {
        other->m_handler = nullptr;
    }
    dismissViewControllerAnimated(true, std::move(handler));
}

void UIAlertController::triggerDefault()
{
    if (m_actions.size() == 1) {
        trigger(m_actions.front().get());
        return;
    }
    triggerStyle(UIAlertAction::Style::Default);
}

void UIAlertController::triggerCancel()
{
    triggerStyle(UIAlertAction::Style::Cancel);
}

void UIAlertController::triggerStyle(UIAlertAction::Style style)
{
    const auto found =
        std::find_if(m_actions.begin(), m_actions.end(),
                     [style](const auto &action) { return action->style() == style; });
    if (found != m_actions.end()) {
        trigger(found->get());
    }
}

void UIAlertController::fieldReturned(UIControl *sender)
{
    auto next = std::find_if(m_textFields.begin(), m_textFields.end(),
                             [sender](const auto &field) { return field.get() == sender; });
    if (next != m_textFields.end() && ++next != m_textFields.end()) {
        (*next)->becomeFirstResponder();
    } else {
        triggerDefault();
    }
}

QQmlListProperty<UIAlertAction> UIAlertController::actionList()
{
    return listProperty<UIAlertAction, &UIAlertController::m_actions>(this);
}

QQmlListProperty<UITextField> UIAlertController::textFieldList()
{
    return listProperty<UITextField, &UIAlertController::m_textFields>(this);
}
