// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/account/WZTUserViewController.h"

#include "model/WZTSession.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "screens/common/ContentType.h"
#include "screens/common/FieldsAlert.h"
#include "screens/common/MainThread.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"
#include "views/AdaptiveColors.h"
#include "views/HapticTap.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr Message updateMessages[] = {
    {0, MessageKind::Error, u"Entered password did not match this account"},
    {1, MessageKind::Success, u"Account successfully updated."},
    {2, MessageKind::Error, u"An account was not found for the supplied email."},
    {3, MessageKind::Error, u"An unknown error occured."},
};

enum UpdateField : size_t { NameField, NewPasswordField, CurrentPasswordField };

std::array<AlertField, 3> updateFields(const std::optional<WZTUser> &user)
{
    return {{
        {user ? user->userName.value_or(QString()) : QString(),
         {.keyboardType = UIKeyboardType::ASCIICapable,
          .autocorrectionType = UITextAutocorrectionType::Yes,
          .textContentType = UITextContentType::Name},
         u"Name"_s},
        {u"New Password"_s,
         {.autocorrectionType = UITextAutocorrectionType::No,
          .textContentType = contentTypeSince(12, UITextContentType::NewPassword),
          .secureTextEntry = true}},
        {u"Current Password"_s,
         {.textContentType = contentTypeSince(12, UITextContentType::Password),
          .secureTextEntry = true}},
    }};
}

std::optional<QString> currentEmail()
{
    const std::optional<WZTUser> &user = WZTSession::shared()->currentUser();
    return user ? user->email : std::nullopt;
}

// A reply is dropped when the user has signed out, or somebody else has signed in, since the
// request.
bool isSignedIn(const std::optional<QString> &email)
{
    return WZTSession::shared()->currentUser() && email == currentEmail();
}

/// The field's text; nil if that is empty.
std::optional<QString> nonEmptyText(const UITextField &field)
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
    auto cell = cellForSection(indexPath.section);
    cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    return cell;
}

std::shared_ptr<UITableViewCell> WZTUserViewController::cellForSection(int section)
{
    if (section == 0) {
        return tableView()->dequeueReusableCellWithIdentifier(u"header"_s);
    }
    if (section == 1) {
        auto cell =
            tableView()->dequeueReusableCellWithIdentifier<WZTAccountTableViewCell>(u"account"_s);
        cell->editButton()->addTarget(this, &WZTUserViewController::editProfile,
                                      UIControlEvent::TouchUpInside);
        return cell;
    }
    auto cell = tableView()->dequeueReusableCellWithIdentifier<WZTButtonTableViewCell>(u"button"_s);
    cell->button()->setButtonColor(UIColor::redColor());
    cell->button()->addTarget(this, &WZTUserViewController::logout, UIControlEvent::TouchUpInside);
    cell->button()->setTitle(u"Logout"_s);
    return cell;
}

void WZTUserViewController::refresh(UIControl *sender)
{
    const auto email = currentEmail();
    const auto finish = [email](UIRefreshControl &control, NSUInteger /*code*/,
                                const std::optional<WZTUser> &user) {
        if (user && isSignedIn(email)) {
            WZTSession::shared()->setCurrentUser(*user);
        }
        control.endRefreshing();
    };
    WZTAPI::userForAccount(email, onMainThread(static_cast<UIRefreshControl *>(sender), finish));
}

void WZTUserViewController::editProfile(UIControl *)
{
    const std::optional<WZTUser> user = WZTSession::shared()->currentUser();
    const auto email = user ? user->email : std::nullopt;
    tapHaptically();
    presentFieldsAlert(*this, u"Update Account"_s, updateFields(user), u"Update"_s,
                       [self = strong(this), email](const UIAlertController &alert) {
                           self->requestUpdate(alert, email);
                       });
}

void WZTUserViewController::requestUpdate(const UIAlertController &alert,
                                          const std::optional<QString> &email)
{
    const auto &fields = alert.textFields();
    const auto name = nonEmptyText(*fields[NameField]);
    const auto newPassword = nonEmptyText(*fields[NewPasswordField]);
    // The service refuses an empty password, not this screen.
    const auto password = fields[CurrentPasswordField]->text();
    if (!password) {
        displayErrorMessage(u"Enter your password to confirm changes."_s);
        return;
    }
    if (!name && !newPassword) {
        displayErrorMessage(u"Enter changes to update account."_s);
        return;
    }
    const auto finish = [email](WZTUserViewController &self, NSUInteger code,
                                const std::optional<WZTUser> &user) {
        self.updateCompleted(code, user, email);
    };
    WZTAPI::updateAccount(email, name, SHA256(*password), digest(newPassword),
                          onMainThread(this, finish));
}

void WZTUserViewController::updateCompleted(NSUInteger code, const std::optional<WZTUser> &user,
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
