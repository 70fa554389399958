// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UIControl.h"

#include <QStringList>

#include <array>
#include <bit>

/// Writes down the events of a control; a star says that it was highlighted: "down* up".
class EventLog : public QObject {
public:
    explicit EventLog(UIControl &control)
    {
        using enum UIControlEvent;
        listen<TouchDown, TouchDragInside, TouchDragOutside, TouchDragEnter, TouchDragExit,
               TouchUpInside, TouchUpOutside, TouchCancel, EditingDidBegin, EditingChanged,
               EditingDidEnd, EditingDidEndOnExit>(control);
    }

    /// What was noted since the last call, words separated by a blank.
    [[nodiscard]] QString take() { return std::exchange(m_events, {}).join(u' '); }

private:
    template <UIControlEvent... events>
    void listen(UIControl &control)
    {
        (control.addTarget(this, &EventLog::note<events>, events), ...);
    }

    template <UIControlEvent event>
    void note(UIControl *sender)
    {
        static constexpr std::array names{"down", "",      "inside",  "outside", "enter",
                                          "exit", "up",    "off",     "cancel",  "",
                                          "",     "",      "value",   "",        "",
                                          "",     "begin", "changed", "end",     "return"};
        const auto index = std::size_t(std::countr_zero(unsigned(event)));
        m_events.append(QLatin1String(names[index])
                        + QLatin1String(sender->isHighlighted() ? "*" : ""));
    }

    QStringList m_events;
};
