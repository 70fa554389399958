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
    ScriptPage(ScriptWorld &world, UITransitionStack::Cover cover) : m_world(world), m_cover(cover)
    {
        ++m_world.living;
    }
    ~ScriptPage() override { --m_world.living; }

    void viewDidLoad() override { expect(m_loads++ == 0, u"loads twice"); }
    void viewWillAppear(bool) override
    {
        expect(m_loads == 1 && m_state == UIAppearanceState::Disappeared, u"will appear");
        m_state = UIAppearanceState::Appearing;
        m_world.meanwhile();
    }
    void viewDidAppear(bool) override
    {
        expect(m_state == UIAppearanceState::Appearing, u"did appear");
        m_state = UIAppearanceState::Appeared;
        m_world.meanwhile();
    }
    [[nodiscard]] UITransitionStack::Cover cover() const override { return m_cover; }

protected:
    void appearanceStateDidChange(UITransitionStack::Motion) override
    {
        if (appearanceState() == UIAppearanceState::Disappeared) {
            m_state = UIAppearanceState::Disappeared;
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
    UITransitionStack::Cover m_cover;
    int m_loads = 0;
    UIAppearanceState m_state = UIAppearanceState::Disappeared;
};
