// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaClassInfo>
#include <QObject>
#include <QUrl>

/// Where the file lies that draws `object`, which its class or a base names by
/// Q_CLASSINFO("view", "<module>/<file>"); empty where none does.
[[nodiscard]] inline QUrl viewUrlOf(const QObject &object)
{
    const int index = object.metaObject()->indexOfClassInfo("view");
    if (index < 0) {
        return {};
    }
    const auto file = QString::fromLatin1(object.metaObject()->classInfo(index).value());
    return QUrl(QStringLiteral("qrc:/qt/qml/") + file);
}
