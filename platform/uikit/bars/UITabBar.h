// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"

#include <QQmlListProperty>

#include <vector>

class UITabBarItem;

/// The bar of tabs: their items, the selected one in the tint colour.
class UITabBar : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a tab bar controller")
    Q_PROPERTY(QQmlListProperty<UITabBarItem> items READ itemList NOTIFY itemsChanged FINAL)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY changed FINAL)

public:
    [[nodiscard]] const std::vector<UITabBarItem *> &items() const { return m_items; }
    void setItems(const std::vector<UITabBarItem *> &items);

    [[nodiscard]] int selectedIndex() const { return m_selectedIndex; }
    void setSelectedIndex(int index) { assign(m_selectedIndex, index); }

    /// The user chose a tab, the selected one perhaps: announced by `itemChosen`.
    /// Indices outside the items are ignored.
    Q_INVOKABLE void choose(int index);

Q_SIGNALS:
    /// Separate from `changed`; otherwise every selection would draw all items again.
    void itemsChanged();
    void itemChosen(int index);

private:
    [[nodiscard]] QQmlListProperty<UITabBarItem> itemList();

    std::vector<UITabBarItem *> m_items;
    int m_selectedIndex = 0;
};
