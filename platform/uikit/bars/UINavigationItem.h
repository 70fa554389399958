// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/bars/UIBarButtonItem.h"

/// The title and the buttons of a navigation bar for one controller.
class UINavigationItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a controller")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(UIBarButtonItem *leftBarButtonItem READ leftBarButtonItem NOTIFY changed FINAL)
    Q_PROPERTY(UIBarButtonItem *rightBarButtonItem READ rightBarButtonItem NOTIFY changed FINAL)

public:
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);

    /// Stands where the back button would; null for none.
    [[nodiscard]] UIBarButtonItem *leftBarButtonItem() const { return m_left.get(); }
    void setLeftBarButtonItem(std::shared_ptr<UIBarButtonItem> item);
    /// Null for none.
    [[nodiscard]] UIBarButtonItem *rightBarButtonItem() const { return m_right.get(); }
    void setRightBarButtonItem(std::shared_ptr<UIBarButtonItem> item);

Q_SIGNALS:
    void changed();

private:
    QString m_title;
    std::shared_ptr<UIBarButtonItem> m_left;
    std::shared_ptr<UIBarButtonItem> m_right;
};
