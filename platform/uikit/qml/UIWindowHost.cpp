// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/UIWindowHost.h"

#include "platform/uikit/UIWindow.h"

#include <QCoreApplication>
#include <QIcon>
#include <QQmlEngine>

UIWindowHost::UIWindowHost(UIWindow &window, const QString &title, const QIcon &icon)
{
    QQmlEngine &engine = *m_view.engine();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    m_view.setTitle(title);
    m_view.setIcon(icon);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setMinimumSize({320, 568});
    m_view.resize(390, 844);
    m_view.setInitialProperties({{QStringLiteral("control"), QVariant::fromValue(&window)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/UIKit/UIWindowView.qml")));
}

UIWindowHost::~UIWindowHost() = default;

void UIWindowHost::show()
{
    m_view.show();
    m_view.requestActivate();
}
