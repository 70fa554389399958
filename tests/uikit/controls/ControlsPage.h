// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/RecordingHost.h"
#include "harness/TestRunner.h"
#include "harness/TestWindow.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/controls/UIActivityIndicatorView.h"
#include "platform/uikit/controls/UIButton.h"
#include "platform/uikit/controls/UIImageView.h"
#include "platform/uikit/text/UITextField.h"
#include "tests/uikit/controls/EventLog.h"

#include <QQmlEngine>

/// A page with one control of each kind, in a window of 390x844; "link" lies 2 points below
/// "button". The items have the controls' names as objectName, and the root is "page".
class ControlsPage : public TestWindow {
public:
    ControlsPage() : TestWindow(window)
    {
        using namespace Qt::StringLiterals;
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
        const auto control = [](auto &drawn) { return QVariant::fromValue(&drawn); };
        window.setInitialProperties({{u"control"_s, control(view)},
                                     {u"name"_s, control(name)},
                                     {u"secret"_s, control(secret)},
                                     {u"button"_s, control(button)},
                                     {u"link"_s, control(link)},
                                     {u"picture"_s, control(picture)},
                                     {u"spinner"_s, control(spinner)}});
        window.engine()->addImportPath(u"qrc:/qt/qml"_s);
        window.setResizeMode(QQuickView::SizeRootObjectToView);
        window.resize(390, 844);
        window.setSource(QUrl(u"qrc:/qt/qml/Test/ControlsPage.qml"_s));
        window.show();
        window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&window, TestRunner::patience));
    }

    RecordingHost host;
    UIApplication application{host};
    UIView view;
    UITextField name;
    UITextField secret;
    UIButton button;
    UIButton link;
    UIImageView picture;
    UIActivityIndicatorView spinner;
    QQuickView window;
};
