// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

class QJSEngine;
class QQmlEngine;

/// The style, the text scale, the motion and the direction that everything drawn follows, live, and
/// the version of the platform that screens ask for. An override holds; the rest is what the
/// desktop says.
class Traits : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed FINAL)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY changed FINAL)

public:
    /// The application's traits from now on, until they are destroyed. There is one object at a
    /// time; without a default constructor QML makes no second one.
    explicit Traits(const DesktopAppearance &desktop);
    ~Traits() override;

    /// The application's traits, which must exist.
    [[nodiscard]] static Traits &current();
    static Traits *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    [[nodiscard]] UIUserInterfaceStyle userInterfaceStyle() const { return effective().style; }
    [[nodiscard]] bool isDark() const { return userInterfaceStyle() == UIUserInterfaceStyle::Dark; }
    /// Factor on every text size, 1.0 for none.
    [[nodiscard]] double textScale() const { return effective().textScale; }
    [[nodiscard]] bool reduceMotion() const { return effective().reduceMotion; }

    /// Whether lines are read from the right. An application with a window only.
    [[nodiscard]] bool isRightToLeft() const;
    /// The device pixels of a point. An application with a window only.
    [[nodiscard]] double displayScale() const;

    /// Sets what the desktop says.
    void setDesktopAppearance(const DesktopAppearance &appearance);
    /// Holds over the desktop until it is taken back with nullopt.
    void setOverride(const std::optional<DesktopAppearance> &appearance);

    /// Whether the application behaves as on that version of the platform or a later one. Screens
    /// ask it at the gates 11, 12 and 13, at run time.
    [[nodiscard]] bool systemVersionIsAtLeast(double version) const
    {
        return m_systemVersion >= version;
    }
    void setSystemVersion(double version);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] const DesktopAppearance &effective() const
    {
        return m_override ? *m_override : m_desktop;
    }

    DesktopAppearance m_desktop;
    std::optional<DesktopAppearance> m_override;
    double m_systemVersion = 17.0;
};
