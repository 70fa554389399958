// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/UIView.h"

#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/base/UITapGestureRecognizer.h"

UIView::UIView() = default;
UIView::~UIView() = default;

QString UIView::accessibilityLabel() const
{
    return m_accessibilityLabel.value_or(QString());
}

bool UIView::endEditing(bool /*force*/)
{
    const UIApplication *application = UIApplication::sharedApplication();
    auto *editor = application ? qobject_cast<UIView *>(application->firstResponder()) : nullptr;
    for (const UIView *view = editor; view; view = view->superview()) {
        if (view == this) {
            return editor->resignFirstResponder();
        }
    }
    return true;
}

void UIView::addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer)
{
    m_recognizers.push_back(std::move(recognizer));
    Q_EMIT changed();
}

void UIView::tapped()
{
    const auto recognizers = m_recognizers; // an action may add one, or drop the view
    for (const auto &recognizer : recognizers) {
        recognizer->recognize();
    }
}
