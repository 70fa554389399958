// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIImage.h"

#include <QObject>

/// One tab: a title, a picture and a tag.
class UITabBarItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a controller")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(UIImage image READ image CONSTANT FINAL)
    Q_PROPERTY(QString accessibilityLabel READ accessibilityLabel CONSTANT FINAL)

public:
    /// `title` is empty for a tab without one.
    UITabBarItem(const QString &title, const UIImage &image, int tag);

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] UIImage image() const { return m_image; }
    [[nodiscard]] int tag() const { return m_tag; }

    /// The name for screen readers; the title unless set. Set before the tab is shown.
    [[nodiscard]] QString accessibilityLabel() const { return m_accessibilityLabel; }
    void setAccessibilityLabel(const QString &label) { m_accessibilityLabel = label; }

private:
    QString m_title;
    UIImage m_image;
    int m_tag;
    QString m_accessibilityLabel;
};
