// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/controls/ControlsPage.h"

#include "harness/TestRunner.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

ControlsPage::ControlsPage() : TestWindow(window)
{
    beStrict();
    view.setBackgroundColor(UIColor::systemGroupedBackgroundColor());
    name.setPlaceholder(u"Name"_s);
    name.setLeftViewWidth(14);
    name.setLayer({.cornerRadius = 12, .borderWidth = 2, .borderColor = UIColor::grayColor()});
    secret.setPlaceholder(u"Password"_s);
    secret.setInputTraits({.secureTextEntry = true});
    secret.setBorderStyle(UITextField::BorderStyle::RoundedRect);
    button.setTitle(u"Login"_s);
    link.setTitle(u"Help"_s);
    picture.setImage(UIImage::imageNamed(u"testMark"_s));
    const QVariantMap properties{
        {u"control"_s, QVariant::fromValue(&view)},   {u"name"_s, QVariant::fromValue(&name)},
        {u"secret"_s, QVariant::fromValue(&secret)},  {u"button"_s, QVariant::fromValue(&button)},
        {u"link"_s, QVariant::fromValue(&link)},      {u"picture"_s, QVariant::fromValue(&picture)},
        {u"spinner"_s, QVariant::fromValue(&spinner)}};
    window.engine()->addImportPath(u"qrc:/qt/qml"_s);
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(390, 844);
    window.setInitialProperties(properties);
    window.setSource(QUrl(u"qrc:/qt/qml/Test/ControlsPage.qml"_s));
    window.show();
    window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&window, TestRunner::patience));
}
