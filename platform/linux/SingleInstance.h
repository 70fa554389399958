// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <functional>

/// The application's side of D-Bus activation: owns the application's name on the bus and receives
/// the URLs of later starts, or passes its own to the present owner.
/// Interface: org.freedesktop.Application, in the desktop entry documentation of freedesktop.org.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `opened` is called for each list of URLs received, an empty one for an activation without
    /// URLs.
    SingleInstance(const QDBusConnection &bus, const QString &applicationId,
                   std::function<void(const QStringList &)> opened);
    /// Releases the name.
    ~SingleInstance() override;
    Q_DISABLE_COPY_MOVE(SingleInstance)

    /// False if another process owns the name and has accepted `urls`. True if this process is to
    /// run: it owns the name now, or the bus or the owner refused or did not answer until
    /// `deadline`, which it logs.
    [[nodiscard]] bool claimOrHandOver(const QStringList &urls, QDeadlineTimer deadline);

public Q_SLOTS:
    // The methods on the bus. The object keeps none of their arguments.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &urls, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter,
                        const QVariantMap &platformData);

private:
    enum class Claim { Owner, OwnedByAnother, Refused };
    [[nodiscard]] Claim claim(QDeadlineTimer deadline);
    /// Whether the owner has answered.
    [[nodiscard]] bool handOver(const QStringList &urls, QDeadlineTimer deadline);
    [[nodiscard]] QDBusMessage busCall(const QString &method, const QVariantList &arguments) const;

    QDBusConnection m_bus;
    QString m_name;
    QString m_path;
    std::function<void(const QStringList &)> m_opened;
    QTimer m_trims[2];
};
