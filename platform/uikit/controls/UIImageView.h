// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIImage.h"
#include "platform/uikit/base/UIView.h"

/// A picture, fitted into the view; a decoration that screen readers pass over unless it has
/// an accessibility label.
class UIImageView : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(UIImage image READ image NOTIFY changed FINAL)

public:
    [[nodiscard]] UIImage image() const { return m_image; }
    void setImage(const UIImage &image) { assign(m_image, image); }

private:
    UIImage m_image;
};
