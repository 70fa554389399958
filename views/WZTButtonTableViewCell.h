// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"
#include "views/WZTGlossyButton.h"

/// A button across the table's width. The screen sets its title and its action.
class WZTButtonTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "Views/WZTButtonTableViewCellView.qml")
    Q_PROPERTY(WZTGlossyButton *button READ button CONSTANT FINAL)

public:
    WZTButtonTableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier);
    ~WZTButtonTableViewCell() override;

    /// Made with an empty frame, so its shine is invisible.
    [[nodiscard]] WZTGlossyButton *button() { return &m_button; }

private:
    WZTGlossyButton m_button;
};
