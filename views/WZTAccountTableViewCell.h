// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIButton.h"
#include "platform/uikit/tables/UITableViewCell.h"

/// The signed-in user's card, filled from the shared session when the cell is made and at each
/// reuse. While nobody is signed in, the name and the address are empty.
/// WZTAccountTableViewCellView.qml has the layout.
class WZTAccountTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "Views/WZTAccountTableViewCellView.qml")
    Q_PROPERTY(UIView *cardBackgroundView READ cardBackgroundView CONSTANT FINAL)
    Q_PROPERTY(UILabel *headerLabel READ headerLabel CONSTANT FINAL)
    Q_PROPERTY(UIButton *editButton READ editButton CONSTANT FINAL)
    Q_PROPERTY(UIView *dividerOneView READ dividerOneView CONSTANT FINAL)
    Q_PROPERTY(UILabel *userNameLabel READ userNameLabel CONSTANT FINAL)
    Q_PROPERTY(UIView *dividerTwoView READ dividerTwoView CONSTANT FINAL)
    Q_PROPERTY(UILabel *userNameTitleLabel READ userNameTitleLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel *emailLabel READ emailLabel CONSTANT FINAL)
    Q_PROPERTY(UIView *dividerThreeView READ dividerThreeView CONSTANT FINAL)
    Q_PROPERTY(UILabel *emailTitleLabel READ emailTitleLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel *userSinceLabel READ userSinceLabel CONSTANT FINAL)

public:
    WZTAccountTableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier);
    ~WZTAccountTableViewCell() override;

    [[nodiscard]] UIView *cardBackgroundView() { return &m_cardBackgroundView; }
    [[nodiscard]] UILabel *headerLabel() { return &m_headerLabel; }
    /// A new or reused cell has no target for touch up inside.
    [[nodiscard]] UIButton *editButton() { return &m_editButton; }
    [[nodiscard]] UIView *dividerOneView() { return &m_dividerOneView; }
    [[nodiscard]] UILabel *userNameLabel() { return &m_userNameLabel; }
    [[nodiscard]] UIView *dividerTwoView() { return &m_dividerTwoView; }
    [[nodiscard]] UILabel *userNameTitleLabel() { return &m_userNameTitleLabel; }
    [[nodiscard]] UILabel *emailLabel() { return &m_emailLabel; }
    [[nodiscard]] UIView *dividerThreeView() { return &m_dividerThreeView; }
    [[nodiscard]] UILabel *emailTitleLabel() { return &m_emailTitleLabel; }
    /// The account's number and its creation date in the device's locale.
    [[nodiscard]] UILabel *userSinceLabel() { return &m_userSinceLabel; }

    void prepareForReuse() override;

private:
    void fill();

    UIView m_cardBackgroundView;
    UILabel m_headerLabel;
    UIButton m_editButton;
    UIView m_dividerOneView;
    UILabel m_userNameLabel;
    UIView m_dividerTwoView;
    UILabel m_userNameTitleLabel;
    UILabel m_emailLabel;
    UIView m_dividerThreeView;
    UILabel m_emailTitleLabel;
    UILabel m_userSinceLabel;
};
