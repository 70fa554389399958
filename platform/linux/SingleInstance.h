// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>

/// The application's side of D-Bus activation: owns the application's name on the bus, takes what
/// later starts hand over, and hands over to the owner that is there already.
/// Interface: org.freedesktop.Application, in the desktop entry documentation of freedesktop.org.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `opened` is called for each list of URLs handed over, empty for a mere activation.
    SingleInstance(const QDBusConnection &bus, const QString &applicationId,
                   std::function<void(const QStringList &)> opened);
    /// Gives the name up, if it has it.
    ~SingleInstance() override;
    Q_DISABLE_COPY_MOVE(SingleInstance)

    /// True when this process owns the name now. Otherwise `urls` went to the owner; one that does
    /// not answer within two seconds finds them when it wakes up.
    [[nodiscard]] bool claimOrHandOver(const QStringList &urls);

public Q_SLOTS:
    // The methods on the bus.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &urls, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter,
                        const QVariantMap &platformData);

private:
    [[nodiscard]] bool claim();
    [[nodiscard]] bool handOver(const QStringList &urls);

    QDBusConnection m_bus;
    QString m_name;
    QString m_path;
    std::function<void(const QStringList &)> m_opened;
};
