// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/WindowStage.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/appearance/Theme.h"
#include "tests/uikit/TestPage.h"

using namespace Qt::StringLiterals;

namespace {

/// A page and over it an alert of "Dismiss" and other actions; `triggered` gets the title of the
/// one chosen.
struct AlertStage : WindowStage {
    QString triggered;
    std::shared_ptr<TestPage> root = make<TestPage>(u"Root"_s);
    std::shared_ptr<UIAlertController> alert;

    explicit AlertStage(const QStringList &fields, const QStringList &others = {},
                        const QString &message = {}, const QSize &size = {390, 844},
                        double textScale = 1)
        : WindowStage({.textScale = textScale}), alert(make<UIAlertController>(u"Title"_s, message))
    {
        for (const QString &field : fields) {
            alert->addTextFieldWithConfigurationHandler(
                [&](UITextField &added) { added.setPlaceholder(field); });
        }
        add(u"Dismiss"_s, UIAlertAction::Style::Cancel);
        for (const QString &other : others) {
            add(other, UIAlertAction::Style::Default);
        }
        show(root, {}, size);
        root->presentViewController(alert, true);
    }
    void add(const QString &title, UIAlertAction::Style style)
    {
        alert->addAction(title, style, [this, title] { triggered = title; });
    }
};

const QStringList none;
const QStringList both{u"Name"_s, u"Email"_s};
const QStringList reset{u"Reset"_s};

using AlertFit = std::tuple<const char *, QSize, double, QString, QStringList, bool>;
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
        addCases<AlertFit>({
            {"one", {390, 844}, 1, sentence, none, false},
            {"two", {320, 568}, 1, {}, reset, true},
            {"long", {768, 1024}, 1, {}, {u"Reset the whole password"_s}, false},
            {"large", {320, 568}, 2, sentence, {u"Register"_s}, false},
            {"too much", {320, 568}, 2, sentence.repeated(20), many, false},
        });
    }

    void fits()
    {
        const auto &[name, size, textScale, message, others, sideBySide] = currentCase<AlertFit>();
        AlertStage stage(both, others, message, size, textScale);
        stage.settle();
        const QList<QQuickItem *> parts = stage.items(u"RevealingFlickable"_s);
        QCOMPARE(parts.size(), 2);
        const QRectF body = TestWindow::rect(parts[0]);
        const QRectF buttons = TestWindow::rect(parts[1]);
        const QRectF card = body.united(buttons);
        QCOMPARE(card.width(), 270);
        QVERIFY(qAbs(card.center().x() - size.width() / 2.0) < 1);
        QVERIFY(qAbs(card.center().y() - size.height() / 2.0) < 1);
        QVERIFY(card.top() >= 16 && body.height() > 0 && buttons.height() >= 44);
        QCOMPARE(body.bottom(), buttons.top());

        const QList<QQuickItem *> actions = stage.items(u"UIAlertActionView"_s);
        QCOMPARE(actions.size() == 2 && actions[0]->y() == actions[1]->y(), sideBySide);
        // The cancel button is on the left, or else the last.
        QCOMPARE(actions[0]->x(), 0);
        for (const QQuickItem *other : actions.mid(1)) {
            QVERIFY(other->y() < actions[0]->y() || other->x() > actions[0]->x());
        }
        // An item that gets the keyboard is scrolled into view.
        for (int i = 0; i < both.size() + actions.size(); ++i) {
            const QQuickItem *focused = stage.view().activeFocusItem();
            QVERIFY(card.adjusted(-1, -1, 1, 1).contains(TestWindow::rect(focused)));
            stage.key(Qt::Key_Tab);
        }
    }

    void keysTrigger_data()
    {
        addCases<Keys>({
            {"Enter, two actions", none, reset, {Qt::Key_Enter}, u"Reset"_s},
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
        AlertStage stage(fields, others);
        stage.keys(keys);
        stage.settle();
        QCOMPARE(stage.triggered, triggered);
        QCOMPARE(stage.focused(), triggered.isEmpty() ? u"Email"_s : u"Root"_s);
    }

    void touchesTriggerAndStayInside()
    {
        AlertStage stage({}, reset);
        stage.settle();
        // The page below is dimmed and not touched.
        QQuickItem *page = stage.item(u"TransitionStackView"_s)->childItems().value(0);
        QVERIFY2(page->isVisible(), "an alert hides the page below");
        stage.tap(page);
        QCOMPARE(stage.triggered, QString());
        const Theme theme;
        const int dimmed = stage.grab().pixelColor(5, 5).lightness();
        QVERIFY(dimmed < theme.backgroundColor().lightness());

        QQuickItem *button = stage.items(u"UIAlertActionView"_s).value(1);
        const QRect area = TestWindow::rect(button).toRect();
        QTest::mousePress(&stage.view(), Qt::LeftButton, {}, area.center());
        const QImage pressed = stage.grab();
        const QColor highlight = theme.pressedAlertColor();
        QCOMPARE(pressed.pixelColor(area.left() + 2, area.bottom() - 1), highlight);
        QVERIFY(pressed.pixelColor(area.right() - 1, area.bottom() - 1) != highlight); // round
        QTest::mouseRelease(&stage.view(), Qt::LeftButton, {}, area.center());
        stage.tap(button); // on its way out
        stage.settle();
        QCOMPARE(stage.triggered, u"Reset"_s);
    }

    void theKeyboardComesBack()
    {
        AlertStage stage(both, reset);
        stage.key(Qt::Key_Tab);
        const auto second = make<UIAlertController>(u"Second"_s, QString());
        second->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel, [] {});
        stage.root->presentViewController(second, true);
        QVERIFY(!both.contains(stage.focused()));
        stage.alert->triggerDefault(); // it is not on top
        second->triggerDefault();
        stage.settle();
        QCOMPARE(stage.triggered, QString());
        QCOMPARE(stage.focused(), u"Email"_s);
    }
};

WZT_TEST(AlertTest)
#include "AlertTest.moc"
