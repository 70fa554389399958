// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/QmlFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(UIKitPlugin)

QmlFixture::QmlFixture()
{
    WindowDriver::beStrict();
    window.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(390, 844);
}

QQuickItem *QmlFixture::show(const QString &file, const QVariantMap &properties)
{
    QQmlComponent component(window.engine(), QUrl(QStringLiteral("qrc:/qt/qml/UIKit/") + file));
    return show(component, properties);
}

QQuickItem *QmlFixture::showSource(const QByteArray &source, const QVariantMap &properties)
{
    QQmlComponent component(window.engine());
    component.setData(source, QUrl(QStringLiteral("qrc:/test.qml")));
    return show(component, properties);
}

QQuickItem *QmlFixture::show(QQmlComponent &component, const QVariantMap &properties)
{
    QObject *object = component.createWithInitialProperties(properties);
    if (!object) {
        QTest::qFail(qPrintable(component.errorString()), __FILE__, __LINE__);
        return nullptr;
    }
    window.setContent(component.url(), nullptr, object);
    window.show();
    window.requestActivate();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&window);
    return window.rootObject();
}
