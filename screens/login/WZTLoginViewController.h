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

/// The sign-in screen, presented over the tabs while nobody is signed in. The only ways out are a
/// sign-in and a registration; both hand the user to the session and dismiss the screen. A reset
/// message and a new account are asked for in alerts.
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

    /// Always: nobody gets past this screen by a gesture.
    [[nodiscard]] bool isModalInPresentation() const override { return true; }
    void viewDidLoad() override;
    /// Puts the keyboard into the e-mail field, at every appearance.
    void viewWillAppear(bool animated) override;
    /// Forgets the password.
    void viewDidLeave() override;

    /// A tap anywhere: takes the keyboard from the e-mail field, or else from the password field.
    void handleSingleTap(UITapGestureRecognizer *sender);
    /// Signs in with both fields' texts, trimmed; a message if one is empty.
    void login(UIControl *sender);
    /// Asks for an address and has a reset message sent to it, as typed.
    void forgot(UIControl *sender);
    /// Asks for name, e-mail and password and makes an account of them, as typed.
    void registerAccount(UIControl *sender);

    // What becomes of an operation, by its own codes: a message, the way out with or without
    // a user, or nothing, for a code that is none of them and once the screen is dismissed.
    void loginEnded(NSUInteger code, const std::optional<WZTUser> &user);
    void resetEnded(NSUInteger code);
    void registrationEnded(NSUInteger code, const std::optional<WZTUser> &user);

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
    void enter(const std::optional<WZTUser> &user);

    UIActivityIndicatorView m_activityIndicator;
    UIButton m_forgotPasswordButton;
    UIButton m_loginButton;
    UIButton m_registerButton;
    UIImageView m_logoImageView;
    UILabel m_headerLabel;
    UITextField m_emailTextField;
    UITextField m_passwordTextField;
    UIView m_formContainer;
};
