// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/qml/ControlsPage.h"

#include <QTest>

using namespace Qt::StringLiterals;

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
    label.setText(u"Account Login"_s);
    name.setPlaceholder(u"Name"_s);
    name.setLeftViewWidth(14);
    name.setLayer({.cornerRadius = 12, .borderWidth = 2, .borderColor = UIColor::grayColor()});
    secret.setPlaceholder(u"Password"_s);
    secret.setInputTraits({.secureTextEntry = true});
    secret.setBorderStyle(UITextField::BorderStyle::RoundedRect);
    button.setTitle(u"Login"_s);
    link.setTitle(u"Help"_s);
    picture.setImage(UIImage::imageNamed(u"testMark"_s));
    fixture.showSource(source,
                       {{u"control"_s, QVariant::fromValue(&view)},
                        {u"label"_s, QVariant::fromValue(&label)},
                        {u"name"_s, QVariant::fromValue(&name)},
                        {u"secret"_s, QVariant::fromValue(&secret)},
                        {u"button"_s, QVariant::fromValue(&button)},
                        {u"link"_s, QVariant::fromValue(&link)},
                        {u"picture"_s, QVariant::fromValue(&picture)},
                        {u"spinner"_s, QVariant::fromValue(&spinner)}});
}

QQuickItem *ControlsPage::item(const char *objectName) const
{
    return WindowDriver::named(fixture.window.rootObject(), QLatin1String(objectName));
}

QPoint ControlsPage::at(const char *objectName) const
{
    return WindowDriver::centre(item(objectName));
}

void ControlsPage::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&fixture.window, Qt::Key(key), modifiers);
}

void ControlsPage::type(const char *text)
{
    WindowDriver::type(fixture.window, QLatin1String(text));
}
