// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// Keeps the text of an editor from input methods. Of other editors they are told the text around
/// the insertion mark; of a secret they are told as many bullets.
class SecretTextFilter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *editor READ editor WRITE setEditor REQUIRED FINAL)
    Q_PROPERTY(bool enabled MEMBER m_enabled FINAL)

public:
    [[nodiscard]] QQuickItem *editor() const { return m_editor; }
    void setEditor(QQuickItem *editor);

    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    QPointer<QQuickItem> m_editor;
    bool m_enabled = false;
};
