// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/UIControl.h"

#include <QPointer>

#include <algorithm>

UIControl::UIControl() = default;
UIControl::~UIControl() = default;

void UIControl::add(std::shared_ptr<const Action> action, UIControlEvents events)
{
    std::erase_if(m_entries, [](const Entry &entry) { return !entry.action->target(); });
    for (const Entry &entry : m_entries) {
        if (entry.action->isEqual(*action)) {
            events &= ~entry.events;
        }
    }
    if (events) {
        m_entries.push_back({std::move(action), events});
    }
}

void UIControl::removeTarget(const QObject *target, UIControlEvents events)
{
    for (Entry &entry : m_entries) {
        if (!target || entry.action->target() == target) {
            entry.events &= ~events;
        }
    }
    std::erase_if(m_entries, [](const Entry &entry) { return !entry.events; });
}

void UIControl::sendActionsForControlEvent(UIControlEvent event)
{
    const std::vector<Entry> entries = m_entries;
    const QPointer<UIControl> self(this);
    for (const Entry &entry : entries) {
        if (!entry.events.testFlag(event)) {
            continue;
        }
        // An earlier action may have removed this one.
        const bool stands = std::ranges::any_of(m_entries, [&](const Entry &other) {
            return other.action == entry.action && other.events.testFlag(event);
        });
        if (stands) {
            entry.action->send(this);
        }
        if (!self) {
            return;
        }
    }
}

void UIControl::beginTracking()
{
    if (m_tracking) {
        return;
    }
    m_tracking = true;
    assign(m_highlighted, true);
    sendActionsForControlEvent(UIControlEvent::TouchDown);
}

void UIControl::continueTracking(bool inside)
{
    if (!m_tracking) {
        return;
    }
    const QPointer<UIControl> self(this);
    if (inside != m_highlighted) {
        assign(m_highlighted, inside);
        sendActionsForControlEvent(inside ? UIControlEvent::TouchDragEnter
                                          : UIControlEvent::TouchDragExit);
    }
    if (self && m_tracking) {
        sendActionsForControlEvent(inside ? UIControlEvent::TouchDragInside
                                          : UIControlEvent::TouchDragOutside);
    }
}

void UIControl::endTracking(bool inside)
{
    if (!m_tracking) {
        return;
    }
    m_tracking = false;
    assign(m_highlighted, false);
    sendActionsForControlEvent(inside ? UIControlEvent::TouchUpInside
                                      : UIControlEvent::TouchUpOutside);
}

void UIControl::cancelTracking()
{
    if (!m_tracking) {
        return;
    }
    m_tracking = false;
    assign(m_highlighted, false);
    sendActionsForControlEvent(UIControlEvent::TouchCancel);
}

void UIControl::activate()
{
    if (m_tracking) {
        return;
    }
    const QPointer<UIControl> self(this);
    beginTracking();
    if (self) {
        endTracking(true);
    }
}
