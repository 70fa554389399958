// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"
#include "views/WZTGlossyButton.h"

/// A button as wide as the table allows. What it says and does is set by the screen that shows it.
class WZTButtonTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "Views/WZTButtonTableViewCellView.qml")
    Q_PROPERTY(WZTGlossyButton *button READ button CONSTANT FINAL)

public:
    WZTButtonTableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier);
    ~WZTButtonTableViewCell() override;

    /// Made without a size, and so without a shine that could be seen.
    [[nodiscard]] WZTGlossyButton *button() { return &m_button; }

private:
    WZTGlossyButton m_button;
};
