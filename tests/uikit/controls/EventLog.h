// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIControl.h"

#include <QStringList>

#include <array>

/// Writes down the events of a control; a star says that it was highlighted: "down* up".
class EventLog : public QObject {
public:
    explicit EventLog(UIControl &control) { listen(control, std::make_index_sequence<20>()); }

    /// The events since the last call, separated by blanks.
    [[nodiscard]] QString take() { return std::exchange(m_events, {}).join(u' '); }

private:
    template <std::size_t... bits>
    void listen(UIControl &control, std::index_sequence<bits...>)
    {
        (control.addTarget(this, &EventLog::note<bits>, UIControlEvent(1U << bits)), ...);
    }

    template <std::size_t bit>
    void note(UIControl *sender)
    {
        static constexpr std::array names{"down", "down2", "inside",  "outside", "enter",
                                          "exit", "up",    "off",     "cancel",  "",
                                          "",     "",      "value",   "",        "",
                                          "",     "begin", "changed", "end",     "return"};
        m_events.append(QLatin1String(names[bit])
                        + QLatin1String(sender->isHighlighted() ? "*" : ""));
    }

    QStringList m_events;
};
