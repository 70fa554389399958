// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/TargetAction.h"

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

enum class UIBarButtonItemStyle { Plain };
/// Buttons that the platform names and draws, with its values.
enum class UIBarButtonSystemItem { Cancel = 1, Add = 4 };

/// A button of a navigation bar. Made by `make`, given to a controller's navigation item.
class UIBarButtonItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(bool drawsPlus READ drawsPlus CONSTANT FINAL)

public:
    /// `action` is a member function of `target` that takes the item or nothing.
    template <typename Target, typename Method>
    UIBarButtonItem(UIBarButtonSystemItem item, Target *target, Method action)
        : UIBarButtonItem(titleOf(item), UIBarButtonItemStyle::Plain, target, action)
    {
        m_systemItem = item;
    }
    /// The style decides nothing: there is one drawing.
    template <typename Target, typename Method>
    UIBarButtonItem(const QString &title, UIBarButtonItemStyle, Target *target, Method action)
        : m_title(title),
          m_action(
              std::make_unique<const MethodAction<UIBarButtonItem, Target, Method>>(target, action))
    {
    }

    /// The drawn text; for a button drawn as a picture, its name for screen readers.
    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] bool isSystemItem(UIBarButtonSystemItem item) const
    {
        return m_systemItem == item;
    }
    [[nodiscard]] bool drawsPlus() const { return isSystemItem(UIBarButtonSystemItem::Add); }

    /// Acts as a touch: sends the action, which may put another item in this one's place.
    Q_INVOKABLE void trigger() { m_action->send(this); }

private:
    [[nodiscard]] static QString titleOf(UIBarButtonSystemItem item);

    QString m_title;
    std::optional<UIBarButtonSystemItem> m_systemItem;
    std::unique_ptr<const TargetAction<UIBarButtonItem>> m_action;
};
