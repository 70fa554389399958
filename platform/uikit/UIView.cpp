// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIView.h"

#include "platform/uikit/UITapGestureRecognizer.h"

UIView::UIView() = default;
UIView::~UIView() = default;

QString UIView::accessibilityLabel() const
{
    return m_accessibilityLabel.value_or(QString());
}

void UIView::addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer)
{
    m_recognizers.push_back(std::move(recognizer));
    Q_EMIT changed();
}

void UIView::tapped()
{
    const auto recognizers = m_recognizers; // an action may add one, or drop the view
    for (const auto &recognizer : recognizers)
        recognizer->recognize();
}
