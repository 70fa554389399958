// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/account/WZTUserViewController.h"

#include "model/WZTSession.h"
#include "platform/foundation/base/Dispatch.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/base/UIImpactFeedbackGenerator.h"
#include "screens/common/AlertFields.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"
#include "views/AdaptiveColors.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Message updateMessages[] = {
    {0, MessageKind::Error, u"Entered password did not match this account"},
    {1, MessageKind::Success, u"Account successfully updated."},
    {2, MessageKind::Error, u"An account was not found for the supplied email."},
    {3, MessageKind::Error, u"An unknown error occured."},
};

void tapHaptically()
{
    UIImpactFeedbackGenerator(UIImpactFeedbackStyle::Light).impactOccurred();
}

std::optional<QString> currentEmail()
{
    const std::optional<WZTUser> &user = WZTSession::shared()->currentUser();
    return user ? user->email : std::nullopt;
}

// Signing out holds, and so does signing in as somebody else: a reply that was asked for with
// another address comes too late.
bool isSignedIn(const std::optional<QString> &email)
{
    return WZTSession::shared()->currentUser() && email == currentEmail();
}

/// Nil for a text without a character.
std::optional<QString> entered(const UITextField &field)
{
    const auto text = field.text();
    return text && !text->isEmpty() ? text : std::nullopt;
}

std::optional<QString> digest(const std::optional<QString> &text)
{
    return text ? std::optional(SHA256(*text)) : std::nullopt;
}

} // namespace

WZTUserViewController::WZTUserViewController() : UITableViewController(UITableViewStyle::Grouped)
{
    navigationItem()->setTitle(u"Account"_s);
}

void WZTUserViewController::viewDidLoad()
{
    UITableViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
    tableView()->setSeparatorStyle(UITableViewCellSeparatorStyle::None);
    tableView()->registerClass<WZTHeaderTableViewCell>(u"header"_s);
    tableView()->registerClass<WZTAccountTableViewCell>(u"account"_s);
    tableView()->registerClass<WZTButtonTableViewCell>(u"button"_s);
    auto control = make<UIRefreshControl>();
    control->addTarget(this, &WZTUserViewController::refresh, UIControlEvent::ValueChanged);
    tableView()->setRefreshControl(std::move(control));
}

int WZTUserViewController::numberOfRowsInSection(int /*section*/) const
{
    return 1;
}

double WZTUserViewController::heightForFooterInSection(int section) const
{
    return section == 0 ? 14 : 0;
}

std::shared_ptr<UITableViewCell>
WZTUserViewController::cellForRowAtIndexPath(const NSIndexPath &indexPath)
{
    std::shared_ptr<UITableViewCell> cell;
    if (indexPath.section == 0) {
        cell = tableView()->dequeueReusableCellWithIdentifier(u"header"_s);
    } else if (indexPath.section == 1) {
        auto account =
            tableView()->dequeueReusableCellWithIdentifier<WZTAccountTableViewCell>(u"account"_s);
        account->editButton()->addTarget(this, &WZTUserViewController::editProfile,
                                         UIControlEvent::TouchUpInside);
        cell = std::move(account);
    } else {
        auto button =
            tableView()->dequeueReusableCellWithIdentifier<WZTButtonTableViewCell>(u"button"_s);
        button->button()->setButtonColor(UIColor::redColor());
        button->button()->addTarget(this, &WZTUserViewController::logout,
                                    UIControlEvent::TouchUpInside);
        button->button()->setTitle(u"Logout"_s);
        cell = std::move(button);
    }
    cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    return cell;
}

void WZTUserViewController::refresh(UIControl *sender)
{
    const auto control = strong(static_cast<UIRefreshControl *>(sender));
    const auto email = currentEmail();
    WZTAPI::userForAccount(email, [control, email](NSUInteger, const std::optional<WZTUser> &user) {
        dispatchAsyncMain([control, email, user] {
            if (user && isSignedIn(email)) {
                WZTSession::shared()->setCurrentUser(*user);
            }
            control->endRefreshing();
        });
    });
}

void WZTUserViewController::editProfile(UIControl *)
{
    const std::optional<WZTUser> user = WZTSession::shared()->currentUser();
    const auto email = user ? user->email : std::nullopt;
    const auto contentType = [](UITextContentType type) {
        return UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(12)
            ? type
            : UITextContentType::Unspecified;
    };
    const AlertField fields[] = {
        {user ? user->userName.value_or(QString()) : QString(),
         {.keyboardType = UIKeyboardType::ASCIICapable,
          .autocorrectionType = UITextAutocorrectionType::Yes,
          .textContentType = UITextContentType::Name},
         u"Name"_s},
        {u"New Password"_s,
         {.autocorrectionType = UITextAutocorrectionType::No,
          .textContentType = contentType(UITextContentType::NewPassword),
          .secureTextEntry = true}},
        {u"Current Password"_s,
         {.textContentType = contentType(UITextContentType::Password), .secureTextEntry = true}},
    };

    tapHaptically();
    const auto alert = make<UIAlertController>(u"Update Account"_s, QString());
    addFields(*alert, fields);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel);
    alert->addAction(
        u"Update"_s, UIAlertAction::Style::Default,
        [self = strong(this), alert = alert.get(), email] { self->requestUpdate(*alert, email); });
    presentViewController(alert, true);
}

void WZTUserViewController::requestUpdate(const UIAlertController &alert,
                                          const std::optional<QString> &email)
{
    const auto name = entered(*alert.textFields()[0]);
    const auto newPassword = entered(*alert.textFields()[1]);
    const auto password = alert.textFields()[2]->text(); // an empty one is sent, and refused there
    if (!password) {
        displayErrorMessage(u"Enter your password to confirm changes."_s);
    } else if (!name && !newPassword) {
        displayErrorMessage(u"Enter changes to update account."_s);
    } else {
        WZTAPI::updateAccount(
            email, name, SHA256(*password), digest(newPassword),
            [self = strong(this), email](NSUInteger code, const std::optional<WZTUser> &user) {
                dispatchAsyncMain(
                    [self, email, code, user] { self->updateEnded(code, user, email); });
            });
    }
}

void WZTUserViewController::updateEnded(NSUInteger code, const std::optional<WZTUser> &user,
                                        const std::optional<QString> &email)
{
    if (!isSignedIn(email)) {
        return;
    }
    if (user) {
        WZTSession::shared()->setCurrentUser(*user);
    }
    presentMessage(*this, updateMessages, code);
}

void WZTUserViewController::logout(UIControl *)
{
    tapHaptically();
    WZTSession::shared()->logout();
}
