// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration>

/// How long everything drawn moves, in milliseconds.
class Durations : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int page MEMBER page CONSTANT FINAL)
    Q_PROPERTY(int modal MEMBER modal CONSTANT FINAL)
    Q_PROPERTY(int fade MEMBER fade CONSTANT FINAL)
    Q_PROPERTY(int title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(int release MEMBER release CONSTANT FINAL)
    Q_PROPERTY(int deselection MEMBER deselection CONSTANT FINAL)
    Q_PROPERTY(int fingerRest MEMBER fingerRest CONSTANT FINAL)
    Q_PROPERTY(int refresh READ refresh NOTIFY changed FINAL)
    Q_PROPERTY(int spoke READ spoke NOTIFY changed FINAL)

public:
    static constexpr int page = 350;
    static constexpr int modal = 420;
    /// An alert, and every transition while motion is reduced.
    static constexpr int fade = 220;
    static constexpr int title = 300;
    /// A button that a finger has left.
    static constexpr int release = 250;
    static constexpr int deselection = 350;
    /// How long a finger rests on a scrolling page before it presses; a finger that scrolls has
    /// moved by then.
    static constexpr int press = 100;
    /// A finger that rests for so long has no speed.
    static constexpr int fingerRest = 100;

    /// Follows the application's traits, which must exist.
    Durations();

    [[nodiscard]] int refresh() const;
    /// From one spoke of a spinner to the next.
    [[nodiscard]] int spoke() const;
    /// The rest of a page's transition that a finger began, at the pace of a whole one.
    Q_INVOKABLE [[nodiscard]] int restOfPage(double part) const;

Q_SIGNALS:
    void changed();
};
