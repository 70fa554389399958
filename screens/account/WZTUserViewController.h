// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTUser.h"
#include "platform/foundation/base/NSUInteger.h"
#include "platform/uikit/tables/UITableViewController.h"
#include "screens/common/MessageAlert.h"

class UIAlertController;
class UIControl;

/// Account, the second tab: the logo, the signed-in user's card and the way out. It keeps no copy
/// of the user but asks the shared session each time.
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

    /// Fetches the profile anew, silently whatever comes of it; `sender` is the refresh control.
    void refresh(UIControl *sender);
    /// Asks for a new name, a new password or both, and for the current password.
    void editProfile(UIControl *sender);
    /// Signs out at once.
    void logout(UIControl *sender);

    /// What came of an update of the account of that address: takes over the user and tells of it,
    /// unless somebody else or nobody is signed in by now.
    void updateEnded(NSUInteger code, const std::optional<WZTUser> &user,
                     const std::optional<QString> &email);

private:
    void requestUpdate(const UIAlertController &alert, const std::optional<QString> &email);
};
