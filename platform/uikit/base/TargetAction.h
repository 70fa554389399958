// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

/// An action of a target, as controls and recognisers keep it: it can be sent and compared, and
/// does nothing once its target is gone. `Sender` is the type of the action's argument.
template <typename Sender>
class TargetAction {
public:
    virtual ~TargetAction() = default;
    virtual void send(Sender *sender) const = 0;
    [[nodiscard]] virtual const QObject *target() const = 0;
    /// Whether target and action are the same.
    [[nodiscard]] virtual bool isEqual(const TargetAction &other) const = 0;
};

/// The action `method` of `target`; it takes the sender or nothing.
template <typename Sender, typename Target, typename Method>
class MethodAction final : public TargetAction<Sender> {
public:
    MethodAction(Target *target, Method method) : m_target(target), m_method(method) {}

    void send(Sender *sender) const override
    {
        if (!m_target) {
            return;
        }
        if constexpr (std::is_invocable_v<Method, Target *, Sender *>) {
            (m_target.data()->*m_method)(sender);
        } else {
            (m_target.data()->*m_method)();
        }
    }

    [[nodiscard]] const QObject *target() const override { return m_target; }

    [[nodiscard]] bool isEqual(const TargetAction<Sender> &other) const override
    {
        const auto *same = dynamic_cast<const MethodAction *>(&other);
        return same && same->m_target == m_target && same->m_method == m_method;
    }

private:
    QPointer<Target> m_target;
    Method m_method;
};
