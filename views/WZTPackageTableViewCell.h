// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"

/// A project with a picture and two labels, each null until it is assigned. It is drawn like a
/// plain cell.
class WZTPackageTableViewCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")

public:
    using UITableViewCell::UITableViewCell;

    [[nodiscard]] UIImageView *packageImageView() const { return m_packageImageView.get(); }
    void setPackageImageView(std::shared_ptr<UIImageView> view)
    {
        m_packageImageView = std::move(view);
    }
    [[nodiscard]] UILabel *titleLabel() const { return m_titleLabel.get(); }
    void setTitleLabel(std::shared_ptr<UILabel> label) { m_titleLabel = std::move(label); }
    [[nodiscard]] UILabel *detailLabel() const { return m_detailLabel.get(); }
    void setDetailLabel(std::shared_ptr<UILabel> label) { m_detailLabel = std::move(label); }

private:
    std::shared_ptr<UIImageView> m_packageImageView;
    std::shared_ptr<UILabel> m_titleLabel;
    std::shared_ptr<UILabel> m_detailLabel;
};
