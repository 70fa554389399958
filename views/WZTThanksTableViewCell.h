// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"

/// A heart and a word of thanks.
class WZTThanksTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "Views/WZTThanksTableViewCellView.qml")
    Q_PROPERTY(UIImageView *heartImageView READ heartImageView CONSTANT FINAL)
    Q_PROPERTY(UILabel *thanksLabel READ thanksLabel CONSTANT FINAL)

public:
    WZTThanksTableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier);
    ~WZTThanksTableViewCell() override;

    [[nodiscard]] UIImageView *heartImageView() { return &m_heartImageView; }
    [[nodiscard]] UILabel *thanksLabel() { return &m_thanksLabel; }

private:
    UIImageView m_heartImageView;
    UILabel m_thanksLabel;
};
