// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// The actions on the text of a TextInput or TextEdit.
class EditActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *editor MEMBER m_editor REQUIRED FINAL)
    /// Whether the text must not leave the editor.
    Q_PROPERTY(bool secret MEMBER m_secret FINAL)

public:
    /// The titles of the actions that are possible now.
    Q_INVOKABLE [[nodiscard]] QStringList offered() const;
    /// Performs the action of that title.
    Q_INVOKABLE void perform(const QString &title);
    /// Gives the editor the keyboard, with the insertion mark at `position`, unless that is
    /// selected already. With `select` the word there is selected, or all of a secret.
    Q_INVOKABLE void point(int position, bool select);

private:
    QPointer<QQuickItem> m_editor;
    bool m_secret = false;
};
