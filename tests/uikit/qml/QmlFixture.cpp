// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/QmlFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

QmlFixture::QmlFixture() : screen(QTest::createTouchDevice())
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
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

QQuickItem *QmlFixture::find(QQuickItem *item, const QString &objectName)
{
    if (item->objectName() == objectName)
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, objectName))
            return found;
    }
    return nullptr;
}

QPoint QmlFixture::centre(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

QImage QmlFixture::grab()
{
    return window.grabWindow();
}

void QmlFixture::tap(const QPoint &point)
{
    QTest::touchEvent(&window, screen.get()).press(0, point, &window);
    QTest::touchEvent(&window, screen.get()).release(0, point, &window);
}
