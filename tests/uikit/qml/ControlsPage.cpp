// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/ControlsPage.h"

#include <QTest>

namespace {

constexpr auto source = R"(
import QtQuick
import UIKit

UIViewView {
    id: root
    objectName: "page"
    required property UILabel label
    required property UITextField name
    required property UITextField secret
    required property UIButton button
    required property UIButton link
    required property UIImageView picture
    required property UIActivityIndicatorView spinner
    property int returns: 0

    FocusScope {
        anchors.fill: parent
        focus: true
        Keys.onReturnPressed: ++root.returns

        UILabelView { objectName: "label"; x: 20; y: 20; width: 200; control: root.label }
        UITextFieldView { objectName: "name"; x: 20; y: 60; width: 200; height: 36; control: root.name }
        UITextFieldView { objectName: "secret"; x: 20; y: 116; width: 200; height: 36; control: root.secret }
        UIButtonView { objectName: "button"; x: 20; y: 172; width: 100; height: 30; control: root.button }
        UIButtonView { objectName: "link"; x: 20; y: 204; width: 100; height: 30; control: root.link }
        UIImageViewView { objectName: "picture"; x: 20; y: 254; width: 80; height: 40; control: root.picture }
        UIActivityIndicatorViewView { objectName: "spinner"; x: 20; y: 314; control: root.spinner }
    }
}
)";

} // namespace

ControlsPage::ControlsPage()
{
    view.setBackgroundColor(UIColor::systemGroupedBackgroundColor());
    view.addGestureRecognizer(
        std::make_shared<UITapGestureRecognizer>(this, &ControlsPage::tapped));
    label.setText(QStringLiteral("Account Login"));
    name.setPlaceholder(QStringLiteral("Name"));
    name.setLeftViewWidth(14);
    name.setLayer({.cornerRadius = 12, .borderWidth = 2, .borderColor = UIColor::grayColor()});
    secret.setPlaceholder(QStringLiteral("Password"));
    secret.setInputTraits({.secureTextEntry = true});
    secret.setBorderStyle(UITextField::BorderStyle::RoundedRect);
    button.setTitle(QStringLiteral("Login"));
    link.setTitle(QStringLiteral("Help"));
    picture.setImage(UIImage::imageNamed(QStringLiteral("testMark")));
    QVariantMap controls{{QStringLiteral("control"), QVariant::fromValue(&view)}};
    controls[QStringLiteral("label")] = QVariant::fromValue(&label);
    controls[QStringLiteral("name")] = QVariant::fromValue(&name);
    controls[QStringLiteral("secret")] = QVariant::fromValue(&secret);
    controls[QStringLiteral("button")] = QVariant::fromValue(&button);
    controls[QStringLiteral("link")] = QVariant::fromValue(&link);
    controls[QStringLiteral("picture")] = QVariant::fromValue(&picture);
    controls[QStringLiteral("spinner")] = QVariant::fromValue(&spinner);
    fixture.showSource(source, controls);
}

QQuickItem *ControlsPage::item(const char *objectName) const
{
    return QmlFixture::find(fixture.window.rootObject(), QLatin1String(objectName));
}

QPoint ControlsPage::at(const char *objectName) const
{
    return QmlFixture::centre(item(objectName));
}

void ControlsPage::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&fixture.window, Qt::Key(key), modifiers);
}

void ControlsPage::type(const char *text)
{
    for (; *text; ++text)
        QTest::keyClick(&fixture.window, *text);
}
