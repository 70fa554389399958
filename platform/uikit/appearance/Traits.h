// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"
#include "platform/uikit/appearance/UIFont.h"
#include "platform/uikit/base/Host.h"

#include <QtQmlIntegration>

#include <optional>

class QJSEngine;
class QQmlEngine;

/// The traits that everything drawn follows, live. What is overridden holds; the rest is what the
/// desktop says.
class Traits : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed FINAL)
    // Colours of what the platform itself draws, in the current style: texts stand out from all
    // that they are drawn on by 4.5 to 1 at least.
    Q_PROPERTY(QColor labelColor READ labelColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor secondaryLabelColor READ secondaryLabelColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor placeholderColor READ placeholderColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor separatorColor READ separatorColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentColor READ accentColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor barColor READ barColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor alertColor READ alertColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor pressedAlertColor READ pressedAlertColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor unselectedTabColor READ unselectedTabColor NOTIFY changed FINAL)
    // Fonts of the same, in the current text scale.
    Q_PROPERTY(QFont headlineFont READ headlineFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont bodyFont READ bodyFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont footnoteFont READ footnoteFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont tabTitleFont READ tabTitleFont NOTIFY changed FINAL)

public:
    static Traits *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    [[nodiscard]] UIUserInterfaceStyle userInterfaceStyle() const { return effective().style; }
    [[nodiscard]] bool isDark() const { return userInterfaceStyle() == UIUserInterfaceStyle::Dark; }
    /// Factor on every text size, 1.0 for none.
    [[nodiscard]] double textScale() const { return effective().textScale; }
    [[nodiscard]] bool reduceMotion() const { return effective().reduceMotion; }

    [[nodiscard]] QColor labelColor() const;
    [[nodiscard]] QColor secondaryLabelColor() const;
    [[nodiscard]] QColor placeholderColor() const;
    [[nodiscard]] QColor separatorColor() const;
    [[nodiscard]] QColor accentColor() const;
    [[nodiscard]] QColor backgroundColor() const;
    [[nodiscard]] QColor barColor() const;
    [[nodiscard]] QColor alertColor() const;
    [[nodiscard]] QColor pressedAlertColor() const;
    [[nodiscard]] QColor unselectedTabColor() const;

    [[nodiscard]] QFont headlineFont() const { return font(UIFontTextStyle::Headline); }
    [[nodiscard]] QFont bodyFont() const { return font(UIFontTextStyle::Body); }
    [[nodiscard]] QFont footnoteFont() const { return font(UIFontTextStyle::Footnote); }
    [[nodiscard]] QFont tabTitleFont() const { return font(UIFontTextStyle::TabTitle); }

    /// What the desktop says.
    void setDesktopAppearance(const DesktopAppearance &appearance);
    /// Holds over the desktop until it is taken back with nullopt.
    void setOverride(const std::optional<DesktopAppearance> &appearance);

    /// The platform's version that the application behaves as on. Screens ask it at the gates
    /// 11, 12 and 13, at run time.
    [[nodiscard]] double systemVersion() const { return m_systemVersion; }
    [[nodiscard]] bool systemVersionIsAtLeast(double version) const
    {
        return m_systemVersion >= version;
    }
    void setSystemVersion(double version);

Q_SIGNALS:
    void changed();

private:
    friend class UIApplication;
    Traits() = default; // private, or QML would make a second object

    [[nodiscard]] QFont font(UIFontTextStyle style) const
    {
        return UIFont::preferredFontForTextStyle(style).toQFont(textScale());
    }

    [[nodiscard]] const DesktopAppearance &effective() const
    {
        return m_override ? *m_override : m_desktop;
    }

    DesktopAppearance m_desktop;
    std::optional<DesktopAppearance> m_override;
    double m_systemVersion = 17.0;
};
