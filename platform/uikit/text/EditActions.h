// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// What can be done with the text of a TextInput or TextEdit.
class EditActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *editor MEMBER m_editor REQUIRED FINAL)
    /// Whether the text must not leave the editor.
    Q_PROPERTY(bool secret MEMBER m_secret FINAL)

public:
    /// The titles of what can be done now.
    Q_INVOKABLE [[nodiscard]] QStringList offered() const;
    /// Does what has that title.
    Q_INVOKABLE void perform(const QString &title);
    /// Gives the editor the keyboard, with the insertion mark at `position`, unless that is
    /// selected already. The word there is selected if `select`, or all of a secret.
    Q_INVOKABLE void point(int position, bool select);

private:
    QPointer<QQuickItem> m_editor;
    bool m_secret = false;
};
