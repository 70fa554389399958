// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/login/WZTLoginViewController.h"

#include "model/WZTSession.h"
#include "platform/foundation/base/Overwrite.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "screens/common/ContentType.h"
#include "screens/common/FieldsAlert.h"
#include "screens/common/MainThread.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"
#include "views/HapticTap.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// The messages for each operation's codes. The success codes have none: they dismiss the screen.
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

AlertField emailField()
{
    return {u"Email"_s,
            {.keyboardType = UIKeyboardType::EmailAddress,
             .autocorrectionType = UITextAutocorrectionType::No,
             .textContentType = UITextContentType::EmailAddress}};
}

enum RegistrationField : size_t { NameField, EmailField, PasswordField };

std::array<AlertField, 3> registrationFields()
{
    return {{
        {u"Name"_s,
         {.keyboardType = UIKeyboardType::ASCIICapable,
          .autocorrectionType = UITextAutocorrectionType::Yes,
          .textContentType = UITextContentType::Name}},
        emailField(),
        {u"Password"_s,
         {.textContentType = contentTypeSince(12, UITextContentType::NewPassword),
          .secureTextEntry = true}},
    }};
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
    QString password = trimmedText(m_passwordTextField);
    if (email.isEmpty() || password.isEmpty()) {
        displayErrorMessage(u"Ensure all fields are properly filled."_s);
    } else {
        m_activityIndicator.startAnimating();
        WZTAPI::loginToAccount(email, SHA256(password),
                               onMainThread(this, &WZTLoginViewController::loginCompleted));
    }
    overwrite(password);
}

void WZTLoginViewController::loginCompleted(NSUInteger code, const std::optional<WZTUser> &user)
{
    m_activityIndicator.stopAnimating();
    if (code == loginSucceeded) {
        finishSignIn(user);
    } else {
        presentMessage(*this, loginMessages, code);
    }
}

void WZTLoginViewController::forgot(UIControl *)
{
    tapHaptically();
    const AlertField fields[] = {emailField()};
    presentFieldsAlert(
        *this, u"Reset Password"_s, fields, u"Reset"_s,
        [self = strong(this)](const UIAlertController &alert) { self->requestReset(alert); });
}

void WZTLoginViewController::requestReset(const UIAlertController &alert)
{
    m_activityIndicator.startAnimating();
    WZTAPI::resetAccountPassword(alert.textFields()[0]->text(),
                                 onMainThread(this, &WZTLoginViewController::resetCompleted));
}

void WZTLoginViewController::resetCompleted(NSUInteger code)
{
    m_activityIndicator.stopAnimating();
    presentMessage(*this, resetMessages, code);
}

void WZTLoginViewController::registerAccount(UIControl *)
{
    tapHaptically();
    presentFieldsAlert(
        *this, u"New Account"_s, registrationFields(), u"Register"_s,
        [self = strong(this)](const UIAlertController &alert) { self->requestAccount(alert); });
}

void WZTLoginViewController::requestAccount(const UIAlertController &alert)
{
    const auto &fields = alert.textFields();
    const QString password = fields[PasswordField]->text().value_or(QString());
    m_activityIndicator.startAnimating();
    WZTAPI::registerEmail(fields[EmailField]->text(), fields[NameField]->text(), SHA256(password),
                          onMainThread(this, &WZTLoginViewController::registrationCompleted));
}

void WZTLoginViewController::registrationCompleted(NSUInteger code,
                                                   const std::optional<WZTUser> &user)
{
    m_activityIndicator.stopAnimating();
    if (code == registrationSucceeded) {
        finishSignIn(user);
    } else {
        presentMessage(*this, registrationMessages, code);
    }
}

void WZTLoginViewController::finishSignIn(const std::optional<WZTUser> &user)
{
    // A dismissed screen changes nothing: another reply has already signed somebody in.
    UIViewController *presenter = presentingViewController();
    if (!presenter) {
        return;
    }
    if (user) {
        WZTSession::shared()->setCurrentUser(*user);
    }
    // The presenter also dismisses an alert that the user has opened meanwhile.
    presenter->dismissViewControllerAnimated(true);
}
