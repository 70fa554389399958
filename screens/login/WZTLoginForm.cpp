// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// The contents and actions of the sign-in screen's views. WZTLoginView.qml has their layout.

#include "platform/uikit/base/UITapGestureRecognizer.h"
#include "screens/common/ContentType.h"
#include "screens/login/WZTLoginViewController.h"
#include "views/AdaptiveColors.h"
#include "views/CardStyle.h"
#include "views/UIColorEx.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double fieldInset = 14;
constexpr double cornerRadius = 12;

} // namespace

void WZTLoginViewController::viewDidLoad()
{
    UIViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
    m_logoImageView.setImage(UIImage::imageNamed(u"wztLogo"_s));
    m_logoImageView.setLayer({.masksToBounds = true});
    buildForm();
    buildButtons();
    m_activityIndicator.setHidesWhenStopped(true);
    view()->addGestureRecognizer(
        std::make_shared<UITapGestureRecognizer>(this, &WZTLoginViewController::handleSingleTap));
}

void WZTLoginViewController::viewWillAppear(bool animated)
{
    UIViewController::viewWillAppear(animated);
    m_emailTextField.becomeFirstResponder();
}

void WZTLoginViewController::viewDidLeave()
{
    UIViewController::viewDidLeave();
    m_passwordTextField.erase();
}

void WZTLoginViewController::buildForm()
{
    styleCard(m_formContainer, cornerRadius);
    m_headerLabel.setText(u"Account Login"_s);
    m_headerLabel.setFont(UIFont::preferredFontForTextStyle(UIFontTextStyle::Title2));
    m_headerLabel.setTextColor(AdaptiveColors::text());

    setUpField(m_emailTextField, u"Email"_s,
               {.keyboardType = UIKeyboardType::EmailAddress,
                .autocapitalizationType = UITextAutocapitalizationType::None,
                .textContentType = UITextContentType::EmailAddress});
    m_emailTextField.addTarget(this, &WZTLoginViewController::moveToPassword,
                               UIControlEvent::EditingDidEndOnExit);

    setUpField(m_passwordTextField, u"Password"_s,
               {.keyboardType = UIKeyboardType::ASCIICapable,
                .autocapitalizationType = UITextAutocapitalizationType::None,
                .textContentType = contentTypeSince(11, UITextContentType::Password),
                .secureTextEntry = true});
    m_passwordTextField.addTarget(this, &WZTLoginViewController::login,
                                  UIControlEvent::EditingDidEndOnExit);
}

void WZTLoginViewController::setUpField(UITextField &field, const QString &placeholder,
                                        const UITextInputTraits &traits)
{
    field.setAttributedPlaceholder(placeholder, AdaptiveColors::placeholder());
    field.setTextColor(AdaptiveColors::text());
    field.setLeftViewWidth(fieldInset);
    field.setInputTraits(traits);
    field.setLayer(
        {.cornerRadius = cornerRadius, .borderWidth = 2, .borderColor = AdaptiveColors::line()});
}

void WZTLoginViewController::buildButtons()
{
    setUpButton(m_loginButton, u"Login"_s, &WZTLoginViewController::login);
    setUpButton(m_forgotPasswordButton, u"Forgot Password?"_s, &WZTLoginViewController::forgot);
    m_forgotPasswordButton.setTitleFont(
        UIFont::preferredFontForTextStyle(UIFontTextStyle::Footnote));
    setUpButton(m_registerButton, u"Need an Account?"_s, &WZTLoginViewController::registerAccount);
}

void WZTLoginViewController::setUpButton(UIButton &button, const QString &title,
                                         void (WZTLoginViewController::*action)(UIControl *))
{
    button.setTitle(title);
    button.setTitleColor(UIColorEx::tintColor());
    button.addTarget(this, action, UIControlEvent::TouchUpInside);
}

void WZTLoginViewController::moveToPassword()
{
    m_passwordTextField.becomeFirstResponder();
}
