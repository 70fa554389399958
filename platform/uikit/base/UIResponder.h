// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// An object that can have the keyboard. At most one responder of the application has it at a time.
class UIResponder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(bool firstResponder READ isFirstResponder NOTIFY firstResponderChanged FINAL)

public:
    /// Only responders that answer true get the keyboard.
    [[nodiscard]] virtual bool canBecomeFirstResponder() const { return false; }
    [[nodiscard]] bool isFirstResponder() const;

    /// Takes the keyboard from its holder. Returns whether this responder has it now.
    Q_INVOKABLE bool becomeFirstResponder();
    /// Gives the keyboard up. Returns whether this responder is without it now.
    Q_INVOKABLE bool resignFirstResponder();

Q_SIGNALS:
    void firstResponderChanged();

protected:
    /// Called after the responder got or lost the keyboard, before `firstResponderChanged`.
    virtual void firstResponderDidChange() {}

private:
    static void moveFirstResponder(UIResponder *to);
};
