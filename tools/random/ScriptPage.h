// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/UIViewController.h"

#include <QStringList>

#include <functional>

/// The state that all pages of a script share.
struct ScriptWorld {
    QStringList faults;
    /// Something that a page does while it is told of its life.
    std::function<void()> meanwhile;
    int living = 0;
};

/// Is told of its life in the right order, or writes a fault down.
class ScriptPage : public UIViewController {
public:
    ScriptPage(ScriptWorld &world, TransitionStack::Cover cover) : m_world(world), m_cover(cover)
    {
        ++m_world.living;
    }
    ~ScriptPage() override { --m_world.living; }

    void viewDidLoad() override { expect(m_loads++ == 0, u"loads twice"); }
    void viewWillAppear(bool) override
    {
        expect(m_loads == 1 && m_state == AppearanceState::Disappeared, u"will appear");
        m_state = AppearanceState::Appearing;
        m_world.meanwhile();
    }
    void viewDidAppear(bool) override
    {
        expect(m_state == AppearanceState::Appearing, u"did appear");
        m_state = AppearanceState::Appeared;
        m_world.meanwhile();
    }
    [[nodiscard]] TransitionStack::Cover cover() const override { return m_cover; }

protected:
    void appearanceStateDidChange(TransitionStack::Motion) override
    {
        if (appearanceState() == AppearanceState::Disappeared) {
            m_state = AppearanceState::Disappeared;
        }
    }

private:
    void expect(bool isRight, QStringView event)
    {
        if (!isRight) {
            m_world.faults.append(QStringLiteral("a page %1 out of turn").arg(event));
        }
    }

    ScriptWorld &m_world;
    TransitionStack::Cover m_cover;
    int m_loads = 0;
    AppearanceState m_state = AppearanceState::Disappeared;
};
