// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// Alerts: geometry, touch, keys, accessibility.
class AlertTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void keysTrigger_data();
    void keysTrigger();
    void touchesTriggerAndStayInside();
    void keyboardIsTrappedAndReturned();
    void screenReaderSeesTheAlertAlone();
};

namespace {

/// An alert of "Dismiss" and the other actions; `triggered` gets the title of the one chosen.
struct TestAlert {
    QString triggered;
    std::shared_ptr<UIAlertController> controller;

    explicit TestAlert(const QStringList &fields, const QStringList &others = {},
                       const QString &message = {})
        : controller(make<UIAlertController>(u"Title"_s, message))
    {
        for (const QString &field : fields) {
            controller->addTextFieldWithConfigurationHandler([&](UITextField &added) {
                added.setPlaceholder(field);
                added.setBorderStyle(UITextField::BorderStyle::RoundedRect);
            });
        }
        add(u"Dismiss"_s, UIAlertAction::Style::Cancel);
        for (const QString &other : others)
            add(other, UIAlertAction::Style::Default);
    }

    void add(const QString &title, UIAlertAction::Style style)
    {
        controller->addAction(title, style, [this, title] { triggered = title; });
    }
};

const QStringList twoFields{u"Name"_s, u"Email"_s};

} // namespace

void AlertTest::fits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("textScale");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<bool>("sideBySide");
    const QString sentence = u"A sentence that takes several lines of the alert. "_s;
    const QStringList many{u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s, u"Five"_s, u"Six"_s};
    QTest::newRow("one") << QSize(390, 844) << 1.0 << sentence << QStringList() << false;
    QTest::newRow("two") << QSize(320, 568) << 1.0 << QString() << QStringList{u"Reset"_s} << true;
    QTest::newRow("long") << QSize(768, 1024) << 1.0 << QString()
                          << QStringList{u"Reset the whole password"_s} << false;
    QTest::newRow("large") << QSize(320, 568) << 2.0 << sentence << QStringList{u"Register"_s}
                           << false;
    QTest::newRow("too much") << QSize(320, 568) << 2.0 << sentence.repeated(20) << many << false;
}

void AlertTest::fits()
{
    QFETCH(const QSize, size);
    QFETCH(const double, textScale);
    QFETCH(const QString, message);
    QFETCH(const QStringList, others);
    WindowFixture fixture({.textScale = textScale});
    const auto root = make<TestPage>(u"Root"_s);
    const TestAlert alert(twoFields, others, message);
    fixture.show(root, alert.controller, size);

    const QList<QQuickItem *> parts = fixture.items(u"RevealingFlickable"_s);
    QCOMPARE(parts.size(), 2);
    const QRectF body = WindowFixture::rect(parts[0]);
    const QRectF buttons = WindowFixture::rect(parts[1]);
    const QRectF card = body.united(buttons);
    QCOMPARE(card.width(), 270);
    QVERIFY(qAbs(card.center().x() - size.width() / 2.0) < 1);
    QVERIFY(qAbs(card.center().y() - size.height() / 2.0) < 1);
    QVERIFY(card.top() >= 16 && body.height() > 0 && buttons.height() >= 44);
    QCOMPARE(body.bottom(), buttons.top());

    const QList<QQuickItem *> actions = fixture.items(u"UIAlertActionView"_s);
    QTEST(actions.size() == 2 && actions[0]->y() == actions[1]->y(), "sideBySide");
    // The cancel button is on the left, or else the last.
    QCOMPARE(actions[0]->x(), 0);
    for (const QQuickItem *other : actions.mid(1))
        QVERIFY(other->y() < actions[0]->y() || other->x() > actions[0]->x());
    // Whatever gets the keyboard is scrolled into view.
    for (int i = 0; i < twoFields.size() + actions.size(); ++i) {
        const QQuickItem *focused = fixture.host->view().activeFocusItem();
        QVERIFY(card.adjusted(-1, -1, 1, 1).contains(WindowFixture::rect(focused)));
        fixture.key(Qt::Key_Tab);
    }
}

void AlertTest::keysTrigger_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("triggered");
    const QStringList none;
    const QStringList reset{u"Reset"_s};
    using Keys = QList<Qt::Key>;
    QTest::newRow("Return, one action") << none << none << Keys{Qt::Key_Return} << u"Dismiss"_s;
    QTest::newRow("Enter, two") << none << reset << Keys{Qt::Key_Enter} << u"Reset"_s;
    QTest::newRow("Escape") << none << reset << Keys{Qt::Key_Escape} << u"Dismiss"_s;
    QTest::newRow("Escape in a field")
        << twoFields << reset << Keys{Qt::Key_Escape} << u"Dismiss"_s;
    QTest::newRow("Return in the first field")
        << twoFields << reset << Keys{Qt::Key_Return} << u""_s;
    QTest::newRow("Return in both")
        << twoFields << reset << Keys{Qt::Key_Return, Qt::Key_Return} << u"Reset"_s;
    QTest::newRow("Space on Cancel")
        << none << reset << Keys{Qt::Key_Tab, Qt::Key_Space} << u"Dismiss"_s;
    QTest::newRow("Return on Cancel")
        << none << reset << Keys{Qt::Key_Tab, Qt::Key_Return} << u"Dismiss"_s;
}

void AlertTest::keysTrigger()
{
    QFETCH(const QStringList, fields);
    QFETCH(const QStringList, others);
    QFETCH(const QList<Qt::Key>, keys);
    WindowFixture fixture;
    const auto root = make<TestPage>(u"Root"_s);
    const TestAlert alert(fields, others);
    fixture.show(root);
    root->presentViewController(alert.controller, true);
    for (const Qt::Key key : keys)
        fixture.key(key);
    fixture.settle();
    QTEST(alert.triggered, "triggered");
    QCOMPARE(fixture.focused(), alert.triggered.isEmpty() ? u"Email"_s : u"Root"_s);
}

void AlertTest::touchesTriggerAndStayInside()
{
    WindowFixture fixture;
    const auto root = make<TestPage>(u"Root"_s);
    const TestAlert alert({}, {u"Reset"_s});
    fixture.show(root);
    root->presentViewController(alert.controller, true);
    fixture.settle();
    // The page below is dimmed and not touched.
    fixture.tap(fixture.item(u"UITransitionStackView"_s)->childItems().value(0));
    QCOMPARE(alert.triggered, QString());
    const QImage image = fixture.host->view().grabWindow();
    QVERIFY(image.pixelColor(5, 5).lightness()
            < fixture.application.traits().backgroundColor().lightness());

    QQuickItem *reset = fixture.items(u"UIAlertActionView"_s).value(1);
    const QPoint middle = WindowFixture::rect(reset).center().toPoint();
    QTest::mousePress(&fixture.host->view(), Qt::LeftButton, {}, middle);
    const QImage pressed = fixture.host->view().grabWindow();
    const QColor highlight = fixture.application.traits().pressedAlertColor();
    const QRect area = WindowFixture::rect(reset).toRect();
    QCOMPARE(pressed.pixelColor(area.left() + 2, area.bottom() - 1), highlight);
    QVERIFY(pressed.pixelColor(area.right() - 1, area.bottom() - 1) != highlight); // round
    QTest::mouseRelease(&fixture.host->view(), Qt::LeftButton, {}, middle);
    fixture.tap(reset); // on its way out
    fixture.settle();
    QCOMPARE(alert.triggered, u"Reset"_s);
}

void AlertTest::keyboardIsTrappedAndReturned()
{
    WindowFixture fixture;
    const auto root = make<TestPage>(u"Root"_s);
    fixture.show(root);
    QCOMPARE(fixture.focused(), u"Root"_s);
    const TestAlert alert(twoFields, {u"Reset"_s});
    const TestAlert second({});
    root->presentViewController(alert.controller, true);
    QStringList round;
    for (int i = 0; i < 5; ++i) {
        round.append(fixture.focused());
        fixture.key(Qt::Key_Tab);
    }
    QCOMPARE(round.join(u' '), u"Name Email Dismiss Reset Name"_s);

    root->presentViewController(second.controller, true);
    QVERIFY(!twoFields.contains(fixture.focused()));
    second.controller->triggerDefault();
    fixture.settle();
    QCOMPARE(fixture.focused(), u"Email"_s);
    alert.controller->triggerCancel();
    fixture.settle();
    QCOMPARE(fixture.focused(), u"Root"_s);
}

void AlertTest::screenReaderSeesTheAlertAlone()
{
    WindowFixture fixture;
    const auto root = make<TestPage>(u"Root"_s);
    const TestAlert alert({u"Email"_s}, {u"Reset"_s}, u"Message"_s);
    fixture.show(root);
    QCOMPARE(fixture.accessible(), QStringList{u"EditableText Root"_s});
    root->presentViewController(alert.controller, false);
    const QStringList expected{u"Dialog Title"_s,       u"StaticText Title"_s,
                               u"StaticText Message"_s, u"EditableText Email"_s,
                               u"Button Dismiss"_s,     u"Button Reset"_s};
    QCOMPARE(fixture.accessible(), expected);
    QAccessibleInterface *dialog =
        QAccessible::queryAccessibleInterface(fixture.item(u"UIAlertControllerView"_s));
    QCOMPARE(dialog->text(QAccessible::Description), u"Message"_s);
    QAccessibleInterface *dismiss = dialog->child(dialog->childCount() - 2);
    dismiss->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    fixture.settle();
    QCOMPARE(alert.triggered, u"Dismiss"_s);
    QCOMPARE(fixture.accessible(), QStringList{u"EditableText Root"_s});
}

WZT_TEST(AlertTest)
#include "AlertTest.moc"
