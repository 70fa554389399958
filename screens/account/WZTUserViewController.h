// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTUser.h"
#include "platform/foundation/base/NSUInteger.h"
#include "platform/uikit/tables/UITableViewController.h"
#include "screens/common/MessageAlert.h"

class UIAlertController;
class UIControl;

/// Account, the second tab: the logo, the signed-in user's card and the Logout button. It keeps no
/// copy of the user but asks the shared session each time.
class WZTUserViewController : public UITableViewController,
                              public MessageAlerts<WZTUserViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    WZTUserViewController();

    void viewDidLoad() override;

    [[nodiscard]] int numberOfSections() const override { return 3; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] double heightForFooterInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;

    /// Fetches the profile again; reports neither success nor failure. `sender` is the refresh
    /// control.
    void refresh(UIControl *sender);
    /// Asks for a new name, a new password or both, and for the current password.
    void editProfile(UIControl *sender);
    /// Signs out at once.
    void logout(UIControl *sender);

    /// Stores the user of an update and shows the message for its code, if the user with `email`
    /// is still signed in.
    void updateCompleted(NSUInteger code, const std::optional<WZTUser> &user,
                         const std::optional<QString> &email);

private:
    [[nodiscard]] std::shared_ptr<UITableViewCell> cellForSection(int section);
    void requestUpdate(const UIAlertController &alert, const std::optional<QString> &email);
};
