// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

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

const QStringList none;
const QStringList both{u"Name"_s, u"Email"_s};
const QStringList reset{u"Reset"_s};

using Fit = std::tuple<const char *, QSize, double, QString, QStringList, bool>;
using Keys = std::tuple<const char *, QStringList, QStringList, QList<Qt::Key>, QString>;
} // namespace

/// Alerts: geometry, touch, keys, accessibility.
class AlertTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fits_data()
    {
        const QString sentence = u"A sentence that takes several lines of the alert. "_s;
        const QStringList many{u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s, u"Five"_s, u"Six"_s};
        addCases<Fit>({
            {"one", {390, 844}, 1, sentence, none, false},
            {"two", {320, 568}, 1, {}, reset, true},
            {"long", {768, 1024}, 1, {}, {u"Reset the whole password"_s}, false},
            {"large", {320, 568}, 2, sentence, {u"Register"_s}, false},
            {"too much", {320, 568}, 2, sentence.repeated(20), many, false},
        });
    }

    void fits()
    {
        const auto &[name, size, textScale, message, others, sideBySide] = currentCase<Fit>();
        WindowFixture fixture({.textScale = textScale});
        const TestAlert alert(both, others, message);
        fixture.show(make<TestPage>(u"Root"_s), alert.controller, size);

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
        QCOMPARE(actions.size() == 2 && actions[0]->y() == actions[1]->y(), sideBySide);
        // The cancel button is on the left, or else the last.
        QCOMPARE(actions[0]->x(), 0);
        for (const QQuickItem *other : actions.mid(1))
            QVERIFY(other->y() < actions[0]->y() || other->x() > actions[0]->x());
        // Whatever gets the keyboard is scrolled into view.
        for (int i = 0; i < both.size() + actions.size(); ++i) {
            const QQuickItem *focused = fixture.host->view().activeFocusItem();
            QVERIFY(card.adjusted(-1, -1, 1, 1).contains(WindowFixture::rect(focused)));
            fixture.key(Qt::Key_Tab);
        }
    }

    void keysTrigger_data()
    {
        addCases<Keys>({
            {"Return, one action", none, none, {Qt::Key_Return}, u"Dismiss"_s},
            {"Enter, two", none, reset, {Qt::Key_Enter}, u"Reset"_s},
            {"Escape in a field", both, reset, {Qt::Key_Escape}, u"Dismiss"_s},
            {"Return in the first field", both, reset, {Qt::Key_Return}, {}},
            {"Return in both", both, reset, {Qt::Key_Return, Qt::Key_Return}, u"Reset"_s},
            {"Space on Cancel", none, reset, {Qt::Key_Tab, Qt::Key_Space}, u"Dismiss"_s},
            {"Return on Cancel", none, reset, {Qt::Key_Tab, Qt::Key_Return}, u"Dismiss"_s},
        });
    }

    void keysTrigger()
    {
        const auto &[name, fields, others, keys, triggered] = currentCase<Keys>();
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        const TestAlert alert(fields, others);
        fixture.show(root);
        root->presentViewController(alert.controller, true);
        for (const Qt::Key key : keys)
            fixture.key(key);
        fixture.settle();
        QCOMPARE(alert.triggered, triggered);
        QCOMPARE(fixture.focused(), triggered.isEmpty() ? u"Email"_s : u"Root"_s);
    }

    void touchesTriggerAndStayInside()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        const TestAlert alert({}, reset);
        fixture.show(root);
        root->presentViewController(alert.controller, true);
        fixture.settle();
        // The page below is dimmed and not touched.
        fixture.tap(fixture.item(u"UITransitionStackView"_s)->childItems().value(0));
        QCOMPARE(alert.triggered, QString());
        const UITraits &traits = fixture.application.traits();
        const QColor dimmed = fixture.host->view().grabWindow().pixelColor(5, 5);
        QVERIFY(dimmed.lightness() < traits.backgroundColor().lightness());

        QQuickItem *button = fixture.items(u"UIAlertActionView"_s).value(1);
        const QRect area = WindowFixture::rect(button).toRect();
        QTest::mousePress(&fixture.host->view(), Qt::LeftButton, {}, area.center());
        const QImage pressed = fixture.host->view().grabWindow();
        const QColor highlight = traits.pressedAlertColor();
        QCOMPARE(pressed.pixelColor(area.left() + 2, area.bottom() - 1), highlight);
        QVERIFY(pressed.pixelColor(area.right() - 1, area.bottom() - 1) != highlight); // round
        QTest::mouseRelease(&fixture.host->view(), Qt::LeftButton, {}, area.center());
        fixture.tap(button); // on its way out
        fixture.settle();
        QCOMPARE(alert.triggered, u"Reset"_s);
    }

    void keyboardIsTrappedAndReturned()
    {
        WindowFixture fixture;
        const auto root = make<TestPage>(u"Root"_s);
        fixture.show(root);
        QCOMPARE(fixture.focused(), u"Root"_s);
        const TestAlert alert(both, reset);
        const TestAlert second({});
        root->presentViewController(alert.controller, true);
        QStringList round;
        for (int i = 0; i < 5; ++i) {
            round.append(fixture.focused());
            fixture.key(Qt::Key_Tab);
        }
        QCOMPARE(round.join(u' '), u"Name Email Dismiss Reset Name"_s);

        root->presentViewController(second.controller, true);
        QVERIFY(!both.contains(fixture.focused()));
        second.controller->triggerDefault();
        fixture.settle();
        QCOMPARE(fixture.focused(), u"Email"_s);
        alert.controller->triggerCancel();
        fixture.settle();
        QCOMPARE(fixture.focused(), u"Root"_s);
    }

    void screenReaderSeesTheAlertAlone()
    {
        WindowFixture fixture;
        const TestAlert alert({u"Email"_s}, reset, u"Message"_s);
        fixture.show(make<TestPage>(u"Root"_s), alert.controller);
        QCOMPARE(fixture.accessible().join(u", "_s),
                 u"Dialog Title, StaticText Title, StaticText Message, EditableText Email, "
                 "Button Dismiss, Button Reset"_s);
        QAccessibleInterface *dialog =
            QAccessible::queryAccessibleInterface(fixture.item(u"UIAlertControllerView"_s));
        QCOMPARE(dialog->text(QAccessible::Description), u"Message"_s);
        QAccessibleInterface *dismiss = dialog->child(dialog->childCount() - 2);
        dismiss->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        fixture.settle();
        QCOMPARE(alert.triggered, u"Dismiss"_s);
        QCOMPARE(fixture.accessible(), QStringList{u"EditableText Root"_s});
    }
};

WZT_TEST(AlertTest)
#include "AlertTest.moc"
