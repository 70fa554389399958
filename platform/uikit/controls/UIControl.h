// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/TargetAction.h"
#include "platform/uikit/base/UIView.h"

#include <memory>
#include <vector>

/// Control events, with the platform's values.
enum class UIControlEvent : unsigned {
    TouchDown = 1U << 0,
    TouchDragInside = 1U << 2,
    TouchDragOutside = 1U << 3,
    TouchDragEnter = 1U << 4,
    TouchDragExit = 1U << 5,
    TouchUpInside = 1U << 6,
    TouchUpOutside = 1U << 7,
    TouchCancel = 1U << 8,
    ValueChanged = 1U << 12,
    EditingDidBegin = 1U << 16,
    EditingChanged = 1U << 17,
    EditingDidEnd = 1U << 18,
    EditingDidEndOnExit = 1U << 19,
};
Q_DECLARE_FLAGS(UIControlEvents, UIControlEvent)
Q_DECLARE_OPERATORS_FOR_FLAGS(UIControlEvents)

/// A view that turns touches and edits into actions of targets.
class UIControl : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(bool highlighted READ isHighlighted NOTIFY changed FINAL)

public:
    using Action = TargetAction<UIControl>;

    UIControl();
    ~UIControl() override;

    /// Sends `action` of `target` at these events. A pair of target and action stands once for
    /// an event, however often it is added; actions are sent in the order they were added.
    /// `action` is a member function that takes the sending control or nothing.
    template <typename Target, typename Method>
    void addTarget(Target *target, Method action, UIControlEvents events)
    {
        add(std::make_shared<const MethodAction<UIControl, Target, Method>>(target, action),
            events);
    }

    /// Removes every action of `target`, or of all targets when it is null, from these events.
    void removeTarget(const QObject *target, UIControlEvents events);

    /// Sends the actions of one event. An action may add or remove targets, or drop the control.
    void sendActionsForControlEvent(UIControlEvent event);

    /// Whether a finger is on the control.
    [[nodiscard]] bool isHighlighted() const { return m_highlighted; }

    // One touch, for the drawing of the control. A second touch while one is tracked is ignored,
    // and so are calls for a touch that was never begun.
    void beginTracking();
    void continueTracking(bool inside);
    void endTracking(bool inside);
    void cancelTracking();

    /// Acts as a screen reader's press or the keyboard: a whole touch inside.
    Q_INVOKABLE void activate();

private:
    struct Entry {
        std::shared_ptr<const Action> action;
        UIControlEvents events;
    };

    void add(std::shared_ptr<const Action> action, UIControlEvents events);

    std::vector<Entry> m_entries;
    bool m_tracking = false;
    bool m_highlighted = false;
};
