// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/DesktopWindow.h"

#include "platform/uikit/presentation/UIWindow.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QQmlEngine>
#include <QScreen>
#include <QSvgRenderer>

namespace {

/// The height that a desktop needs at most for a window's title, in points.
constexpr int frame = 48;

/// Those that a desktop asks for, in pixels.
constexpr int iconSizes[] = {16, 32, 48, 64, 128};

/// Drawn here: QIcon needs a plugin for SVG files, which may not be installed.
QIcon drawnIcon(const QString &file)
{
    QSvgRenderer svg(file);
    QIcon icon;
    for (const int size : iconSizes) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        svg.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

DesktopWindow::DesktopWindow(UIWindow &window, const QString &title, const QString &iconFile)
{
    QQmlEngine &engine = *m_view.engine();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    m_view.setTitle(title);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setMinimumSize({320, 568});
    m_view.resize(QSize(390, 844)
                      .boundedTo(m_view.screen()->availableSize() - QSize(0, frame))
                      .expandedTo(m_view.minimumSize()));
    m_view.setInitialProperties({{QStringLiteral("control"), QVariant::fromValue(&window)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/UIKit/UIWindowView.qml")));
    if (iconFile.isEmpty()) {
        return;
    }
    // The icon is drawn after the first frame: whoever starts the application waits for that one.
    const auto drawIcon = [this, iconFile] { m_view.setIcon(drawnIcon(iconFile)); };
    QObject::connect(
        &m_view, &QQuickWindow::frameSwapped, &m_view, drawIcon,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

DesktopWindow::~DesktopWindow() = default;

void DesktopWindow::show()
{
    // A window that is there already keeps its size: to show it would make a maximised one normal.
    if (m_view.isVisible()) {
        m_view.setWindowStates(m_view.windowStates() & ~Qt::WindowMinimized);
        m_view.raise();
    } else {
        m_view.show();
    }
    m_view.requestActivate();
}
