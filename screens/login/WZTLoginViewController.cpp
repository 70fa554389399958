// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/login/WZTLoginViewController.h"

#include "model/WZTSession.h"
#include "platform/foundation/base/Dispatch.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/base/UIImpactFeedbackGenerator.h"
#include "screens/common/AlertFields.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"

using namespace Qt::StringLiterals;

namespace {

// What is told for each code; the code of success has no message but dismisses the screen.
constexpr NSUInteger loginSucceeded = 1;
constexpr Message loginMessages[] = {
    {0, MessageKind::Error, u"Account details did not match any account"},
    {2, MessageKind::Error, u"An account was not found for the supplied email."},
    {3, MessageKind::Error, u"An unknown error occured."},
};

constexpr Message resetMessages[] = {
    {0, MessageKind::Success, u"A reset email has been sent."},
    {1, MessageKind::Error, u"An account doesn't exists for this email."},
    {2, MessageKind::Error, u"An unknown error occured."},
    {3, MessageKind::Error, u"There was an error sending reset email"},
};

constexpr NSUInteger registrationSucceeded = 2;
constexpr Message registrationMessages[] = {
    {0, MessageKind::Error, u"An account already exists for this email."},
    {1, MessageKind::Error, u"Account request couldn't be made at this time."},
    {3, MessageKind::Error, u"Received an unexpected response from server."},
    {4, MessageKind::Error, u"An unknown error occured."},
};

void tapHaptically()
{
    UIImpactFeedbackGenerator(UIImpactFeedbackStyle::Light).impactOccurred();
}

void stopSpinner(const std::weak_ptr<WZTLoginViewController> &weakScreen)
{
    if (const auto screen = weakScreen.lock()) {
        screen->activityIndicator()->stopAnimating();
    }
}

QString trimmedText(const UITextField &field)
{
    return field.text().value_or(QString()).trimmed();
}

} // namespace

void WZTLoginViewController::handleSingleTap(UITapGestureRecognizer *)
{
    if (m_emailTextField.isFirstResponder()) {
        m_emailTextField.resignFirstResponder();
    } else if (m_passwordTextField.isFirstResponder()) {
        m_passwordTextField.resignFirstResponder();
    }
}

void WZTLoginViewController::login(UIControl *)
{
    tapHaptically();
    const QString email = trimmedText(m_emailTextField);
    const QString password = trimmedText(m_passwordTextField);
    if (email.isEmpty() || password.isEmpty()) {
        displayErrorMessage(u"Ensure all fields are properly filled."_s);
        return;
    }
    m_activityIndicator.startAnimating();
    WZTAPI::loginToAccount(email, SHA256(password),
                           [self = strong(this), weakSelf = weak(this)](
                               NSUInteger code, const std::optional<WZTUser> &user) {
                               dispatchAsyncMain([self, weakSelf, code, user] {
                                   stopSpinner(weakSelf);
                                   self->loginEnded(code, user);
                               });
                           });
}

void WZTLoginViewController::loginEnded(NSUInteger code, const std::optional<WZTUser> &user)
{
    if (code == loginSucceeded) {
        enter(user);
    } else {
        presentMessage(*this, loginMessages, code);
    }
}

void WZTLoginViewController::forgot(UIControl *)
{
    tapHaptically();
    const auto alert = make<UIAlertController>(u"Reset Password"_s, QString());
    const AlertField fields[] = {
        {u"Email"_s,
         {.keyboardType = UIKeyboardType::EmailAddress,
          .autocorrectionType = UITextAutocorrectionType::No,
          .textContentType = UITextContentType::EmailAddress}},
    };
    addFields(*alert, fields);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel);
    alert->addAction(u"Reset"_s, UIAlertAction::Style::Default,
                     [self = strong(this), alert = alert.get()] { self->requestReset(*alert); });
    presentViewController(alert, true);
}

void WZTLoginViewController::requestReset(const UIAlertController &alert)
{
    const std::optional<QString> email = alert.textFields()[0]->text();
    m_activityIndicator.startAnimating();
    WZTAPI::resetAccountPassword(email,
                                 [self = strong(this), weakSelf = weak(this)](NSUInteger code) {
                                     dispatchAsyncMain([self, weakSelf, code] {
                                         stopSpinner(weakSelf);
                                         self->resetEnded(code);
                                     });
                                 });
}

void WZTLoginViewController::resetEnded(NSUInteger code)
{
    presentMessage(*this, resetMessages, code);
}

void WZTLoginViewController::registerAccount(UIControl *)
{
    using Correction = UITextAutocorrectionType;
    const bool hasNewPasswordContent =
        UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(12);
    const AlertField fields[] = {
        {u"Name"_s,
         {.keyboardType = UIKeyboardType::ASCIICapable,
          .autocorrectionType = Correction::Yes,
          .textContentType = UITextContentType::Name}},
        {u"Email"_s,
         {.keyboardType = UIKeyboardType::EmailAddress,
          .autocorrectionType = Correction::No,
          .textContentType = UITextContentType::EmailAddress}},
        {u"Password"_s,
         {.textContentType = hasNewPasswordContent ? UITextContentType::NewPassword
                                                   : UITextContentType::Unspecified,
          .secureTextEntry = true}},
    };

    tapHaptically();
    const auto alert = make<UIAlertController>(u"New Account"_s, QString());
    addFields(*alert, fields);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel);
    alert->addAction(u"Register"_s, UIAlertAction::Style::Default,
                     [self = strong(this), alert = alert.get()] { self->requestAccount(*alert); });
    presentViewController(alert, true);
}

void WZTLoginViewController::requestAccount(const UIAlertController &alert)
{
    const auto &fields = alert.textFields();
    m_activityIndicator.startAnimating();
    WZTAPI::registerEmail(
        fields[1]->text(), fields[0]->text(), SHA256(fields[2]->text().value_or(QString())),
        [self = strong(this)](NSUInteger code, const std::optional<WZTUser> &user) {
            dispatchAsyncMain([self, code, user] {
                self->m_activityIndicator.stopAnimating();
                self->registrationEnded(code, user);
            });
        });
}

void WZTLoginViewController::registrationEnded(NSUInteger code, const std::optional<WZTUser> &user)
{
    if (code == registrationSucceeded) {
        enter(user);
    } else {
        presentMessage(*this, registrationMessages, code);
    }
}

void WZTLoginViewController::enter(const std::optional<WZTUser> &user)
{
    // A reply to a screen that is gone comes too late: another one has signed somebody in.
    UIViewController *presenter = presentingViewController();
    if (!presenter) {
        return;
    }
    if (user) {
        WZTSession::shared()->setCurrentUser(*user);
    }
    // Asked of the presenter, so that an alert opened meanwhile goes as well.
    presenter->dismissViewControllerAnimated(true);
}
