// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/tour/Tour.h"

#include "harness/TestRunner.h"
#include "harness/TestWindow.h"
#include "sandbox/DemoIssues.h"
#include "tools/tour/ContactSheet.h"
#include "views/WZTGlossyButton.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

struct Look {
    const char *name;
    QSize size;
    DesktopAppearance appearance;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

constexpr UIUserInterfaceStyle light = UIUserInterfaceStyle::Light;
constexpr UIUserInterfaceStyle dark = UIUserInterfaceStyle::Dark;

const Look looks[] = {
    {"light", {390, 844}, {.style = light}},
    {"dark", {390, 844}, {.style = dark}},
    {"narrow", {320, 568}, {.style = light}},
    {"narrow-dark", {320, 568}, {.style = dark}},
    {"large-text", {320, 568}, {.style = light, .textScale = 2}},
    {"large-text-dark", {320, 568}, {.style = dark, .textScale = 2}},
    {"tablet", {768, 1024}, {.style = light}},
    {"tablet-dark", {768, 1024}, {.style = dark}},
    {"desktop", {1280, 800}, {.style = light}},
    {"desktop-dark", {1280, 800}, {.style = dark}},
    {"mirrored", {390, 844}, {.style = light}, Qt::RightToLeft},
};

} // namespace

Tour::Tour(const QDir &folder) : m_folder(folder) {}
Tour::~Tour() = default;

void Tour::picture_data()
{
    QTest::addColumn<Picture>("picture");
    QTest::addColumn<const Look *>("look");
    for (const Look &look : looks) {
        for (const Picture &picture : allPictures()) {
            const QByteArray name = look.name + ('/' + picture.name.toLatin1());
            QTest::newRow(name.constData()) << picture << &look;
        }
    }
}

void Tour::picture()
{
    QFETCH(const Picture, picture);
    QFETCH(const Look *, look);
    m_size = look->size;
    m_keyboard = 0;
    m_appearance = look->appearance;
    m_appearance.reduceMotion = true; // nothing is caught half-way
    QGuiApplication::setLayoutDirection(look->direction);
    m_app = std::make_unique<TestApp>();
    const QString joined = u"2026-11-16 09:30:00"_s;
    m_app->service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s, .joined = joined},
                                u"secret"_s);
    m_app->service().addAccount({.email = longEmail.toString(),
                                 .name = u"Maximiliane Alexandra Featherstonehaugh-Cholmondeley"_s,
                                 .joined = joined},
                                u"secret"_s);
    m_app->service().addIssues(sandbox::demoIssues());
    if (picture.answer) {
        m_app->service().stage(picture.path, *picture.answer);
    }
    launch();
    for (const Step &step : picture.steps) {
        take(step);
        if (QTest::currentTestFailed()) {
            break;
        }
    }
    m_window->settle();
    const QString file = m_folder.filePath(QLatin1String(QTest::currentDataTag()) + u".png"_s);
    QVERIFY(m_folder.mkpath(QLatin1String(look->name)));
    QImage image = m_window->view().grabWindow();
    image.setDevicePixelRatio(static_cast<double>(image.width()) / m_size.width());
    QPainter(&image).fillRect(0, m_size.height() - m_keyboard, m_size.width(), m_keyboard,
                              QColor(128, 128, 132));
    QVERIFY2(image.save(file), qPrintable(file));
    m_window.reset();
    m_app.reset();
}

void Tour::shinyButton()
{
    TestApp app;
    app.launch();
    WZTGlossyButton button(QRectF(0, 0, 240, 56), UIColor::colorWithRed(0.106, 0.506, 0.906, 1));
    button.setTitle(u"Shiny"_s);
    button.setTitleColor(UIColor::whiteColor());
    QQuickView view;
    view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    view.setInitialProperties({{u"control"_s, QVariant::fromValue(&button)}});
    view.setSource(QUrl(u"qrc:/qt/qml/Views/WZTGlossyButtonView.qml"_s));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(view.grabWindow().save(m_folder.filePath(u"shiny-button.png"_s)));
}

void Tour::contactSheets()
{
    for (const Look &look : looks) {
        const QString name = QString::fromLatin1(look.name);
        if (m_folder.exists(name)) {
            QVERIFY(makeContactSheet(m_folder.filePath(name)));
        }
    }
}

void Tour::launch()
{
    m_window.reset();
    m_app->launch();
    m_window = std::make_unique<TestWindow>();
    m_window->open(*m_app->delegate().window(), m_size, m_appearance);
}

void Tour::take(const Step &step)
{
    m_window->settle();
    switch (step.kind) {
    case Step::Kind::Tap:
        tap(step.what);
        break;
    case Step::Kind::Type:
        m_window->type(step.what);
        break;
    case Step::Kind::Return:
        m_window->key(Qt::Key_Return);
        break;
    case Step::Kind::Refresh:
        m_window->key(Qt::Key_F5);
        break;
    case Step::Kind::End:
        m_window->key(Qt::Key_End);
        break;
    case Step::Kind::Menu:
        m_window->key(Qt::Key_Menu);
        break;
    case Step::Kind::Keyboard:
        m_keyboard = m_size.height() * 2 / 5;
        m_window->showKeyboard(m_keyboard);
        QCoreApplication::processEvents(); // the edited field comes into sight
        break;
    case Step::Kind::Await:
        await(step.what);
        break;
    case Step::Kind::AwaitEnd:
        QTRY_VERIFY(!m_window->accessible(step.what));
        break;
    case Step::Kind::Restart:
        launch();
        break;
    }
}

void Tour::tap(const QString &name)
{
    await(name);
    if (!m_window->accessible(name)) {
        return;
    }
    if (QRect(QPoint(), m_window->view().size()).contains(m_window->centre(name))) {
        m_window->tap(name);
    } else { // just out of sight
        m_window->press(name);
    }
}

void Tour::await(const QString &name)
{
    QTRY_VERIFY2(m_window->accessible(name), qPrintable(u"nothing is named \"%1\""_s.arg(name)));
}
