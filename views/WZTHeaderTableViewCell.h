// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"

/// The logo on the table's own background.
class WZTHeaderTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "Views/WZTHeaderTableViewCellView.qml")
    Q_PROPERTY(UIImageView *logoImageView READ logoImageView CONSTANT FINAL)

public:
    WZTHeaderTableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier);
    ~WZTHeaderTableViewCell() override;

    [[nodiscard]] UIImageView *logoImageView() { return &m_logoImageView; }

private:
    UIImageView m_logoImageView;
};
