// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/NSUInteger.h"
#include "platform/uikit/controls/UIActivityIndicatorView.h"
#include "platform/uikit/controls/UIButton.h"
#include "platform/uikit/controls/UIImageView.h"
#include "platform/uikit/controls/UILabel.h"
#include "platform/uikit/presentation/UIViewController.h"
#include "platform/uikit/text/UITextField.h"
#include "screens/common/MessageAlert.h"

class WZTUser;
class UIAlertController;

/// The sign-in screen, presented over the tabs while nobody is signed in. Only a sign-in and a
/// registration lead out of it: they hand the user to the session and dismiss the screen. Alerts
/// with fields ask for the address of a password reset and for the details of a new account.
class WZTLoginViewController : public UIViewController,
                               public MessageAlerts<WZTLoginViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "Screens/WZTLoginView.qml")
    Q_PROPERTY(UIActivityIndicatorView *activityIndicator READ activityIndicator CONSTANT FINAL)
    Q_PROPERTY(UIButton *forgotPasswordButton READ forgotPasswordButton CONSTANT FINAL)
    Q_PROPERTY(UIButton *loginButton READ loginButton CONSTANT FINAL)
    Q_PROPERTY(UIButton *registerButton READ registerButton CONSTANT FINAL)
    Q_PROPERTY(UIImageView *logoImageView READ logoImageView CONSTANT FINAL)
    Q_PROPERTY(UILabel *headerLabel READ headerLabel CONSTANT FINAL)
    Q_PROPERTY(UITextField *emailTextField READ emailTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField *passwordTextField READ passwordTextField CONSTANT FINAL)
    Q_PROPERTY(UIView *formContainer READ formContainer CONSTANT FINAL)

public:
    [[nodiscard]] UIActivityIndicatorView *activityIndicator() { return &m_activityIndicator; }
    [[nodiscard]] UIButton *forgotPasswordButton() { return &m_forgotPasswordButton; }
    [[nodiscard]] UIButton *loginButton() { return &m_loginButton; }
    [[nodiscard]] UIButton *registerButton() { return &m_registerButton; }
    [[nodiscard]] UIImageView *logoImageView() { return &m_logoImageView; }
    [[nodiscard]] UILabel *headerLabel() { return &m_headerLabel; }
    [[nodiscard]] UITextField *emailTextField() { return &m_emailTextField; }
    [[nodiscard]] UITextField *passwordTextField() { return &m_passwordTextField; }
    /// The card that holds the header and both fields.
    [[nodiscard]] UIView *formContainer() { return &m_formContainer; }

    /// True: no gesture dismisses this screen.
    [[nodiscard]] bool isModalInPresentation() const override { return true; }
    void viewDidLoad() override;
    /// Makes the e-mail field the first responder, at every appearance.
    void viewWillAppear(bool animated) override;
    /// Overwrites the typed password.
    void viewDidLeave() override;

    /// Ends editing in the e-mail field, or else in the password field, after a tap anywhere.
    void handleSingleTap(UITapGestureRecognizer *sender);
    /// Signs in with the trimmed texts of both fields; shows a message if one is empty.
    void login(UIControl *sender);
    /// Asks for an address and requests a reset message to it, as typed.
    void forgot(UIControl *sender);
    /// Asks for name, e-mail and password and requests an account with them, as typed.
    void registerAccount(UIControl *sender);

    // These stop the spinner and act on the operation's own codes: a message, the dismissal with or
    // without a user, or nothing for an unlisted code. A dismissed screen shows nothing.
    void loginCompleted(NSUInteger code, const std::optional<WZTUser> &user);
    void resetCompleted(NSUInteger code);
    void registrationCompleted(NSUInteger code, const std::optional<WZTUser> &user);

private:
    void buildForm();
    void buildButtons();
    void setUpField(UITextField &field, const QString &placeholder,
                    const UITextInputTraits &traits);
    void setUpButton(UIButton &button, const QString &title,
                     void (WZTLoginViewController::*action)(UIControl *));
    void moveToPassword();

    void requestReset(const UIAlertController &alert);
    void requestAccount(const UIAlertController &alert);
    void finishSignIn(const std::optional<WZTUser> &user);

    UIActivityIndicatorView m_activityIndicator{UIActivityIndicatorView::Style::Gray};
    UIButton m_forgotPasswordButton;
    UIButton m_loginButton;
    UIButton m_registerButton;
    UIImageView m_logoImageView;
    UILabel m_headerLabel;
    UITextField m_emailTextField;
    UITextField m_passwordTextField;
    UIView m_formContainer;
};
