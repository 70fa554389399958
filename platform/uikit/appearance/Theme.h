// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// The colours and the fonts of everything that the platform itself draws, in the current style and
/// text scale. Texts stand out from all grounds that they are drawn on by 4.5 to 1 at least.
class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor labelColor READ labelColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor secondaryLabelColor READ secondaryLabelColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor separatorColor READ separatorColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentColor READ accentColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor selectedTextColor READ selectedTextColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor selectedRowColor READ selectedRowColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor barColor READ barColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor unselectedTabColor READ unselectedTabColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor alertColor READ alertColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor pressedAlertColor READ pressedAlertColor NOTIFY changed FINAL)
    Q_PROPERTY(QColor dimmingColor READ dimmingColor CONSTANT FINAL)
    Q_PROPERTY(double alertDimming READ alertDimming NOTIFY changed FINAL)
    Q_PROPERTY(double pageDimming READ pageDimming CONSTANT FINAL)
    Q_PROPERTY(QFont headlineFont READ headlineFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont bodyFont READ bodyFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont footnoteFont READ footnoteFont NOTIFY changed FINAL)
    Q_PROPERTY(QFont tabTitleFont READ tabTitleFont NOTIFY changed FINAL)

public:
    /// Follows the application's traits, which must exist.
    Theme();

    [[nodiscard]] QColor labelColor() const;
    [[nodiscard]] QColor secondaryLabelColor() const;
    [[nodiscard]] QColor separatorColor() const;
    [[nodiscard]] QColor accentColor() const;
    /// Behind the selected part of a text.
    [[nodiscard]] QColor selectedTextColor() const;
    /// Behind a row that is pressed or selected.
    [[nodiscard]] QColor selectedRowColor() const;
    [[nodiscard]] QColor backgroundColor() const;
    [[nodiscard]] QColor barColor() const;
    [[nodiscard]] QColor unselectedTabColor() const;
    [[nodiscard]] QColor alertColor() const;
    [[nodiscard]] QColor pressedAlertColor() const;
    [[nodiscard]] static QColor dimmingColor() { return Qt::black; }
    /// The opacity of the dimming below an alert, and over a page that another one covers.
    [[nodiscard]] double alertDimming() const;
    [[nodiscard]] static double pageDimming() { return 0.1; }

    [[nodiscard]] QFont headlineFont() const;
    [[nodiscard]] QFont bodyFont() const;
    [[nodiscard]] QFont footnoteFont() const;
    [[nodiscard]] QFont tabTitleFont() const;

Q_SIGNALS:
    void changed();
};
