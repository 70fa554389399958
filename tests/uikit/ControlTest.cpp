// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIImpactFeedbackGenerator.h"
#include "platform/uikit/UITextField.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/EventLog.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A target whose first action can change what is being sent.
struct Meddler : QObject {
    QString calls;
    std::function<void()> meddle = [] {};

    void first(UIControl *)
    {
        calls += u'1';
        meddle();
    }
    void second() { calls += u'2'; }
};

constexpr auto up = UIControlEvent::TouchUpInside;
constexpr auto down = UIControlEvent::TouchDown;

} // namespace

class ControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void touchesBecomeEvents_data();
    void touchesBecomeEvents();
    void actionsStandOnceAndInOrder();
    void actionsMayMeddle_data();
    void actionsMayMeddle();
    void fieldsTellOfEdits();
    void keyboardsAreAskedFor_data();
    void keyboardsAreAskedFor();
    void tapsAreFeltWhereThereIsAnApplication();
};

void ControlTest::touchesBecomeEvents_data()
{
    QTest::addColumn<QString>("touch"); // b begins, i and o go on, I and O end, c cancels, a key
    QTest::addColumn<QString>("events");
    QTest::newRow("slide") << "biI"
                           << "down* inside* up";
    QTest::newRow("slide out, let go") << "booO"
                                       << "down* exit outside outside off";
    QTest::newRow("out and back in") << "boiI"
                                     << "down* exit outside enter* inside* up";
    QTest::newRow("taken away") << "bocoI"
                                << "down* exit outside cancel";
    QTest::newRow("second finger") << "bbII"
                                   << "down* up";
    QTest::newRow("never begun") << "ioIOc"
                                 << "";
    QTest::newRow("key during a touch") << "abaO"
                                        << "down* up down* off";
}

void ControlTest::touchesBecomeEvents()
{
    QFETCH(const QString, touch);
    UIControl control;
    EventLog log(control);
    for (const QChar step : touch) {
        switch (step.toLatin1()) {
        case 'b':
            control.beginTracking();
            break;
        case 'i':
            control.continueTracking(true);
            break;
        case 'o':
            control.continueTracking(false);
            break;
        case 'I':
            control.endTracking(true);
            break;
        case 'O':
            control.endTracking(false);
            break;
        case 'a':
            control.activate();
            break;
        default:
            control.cancelTracking();
        }
    }
    QTEST(log.take(), "events");
}

void ControlTest::actionsStandOnceAndInOrder()
{
    UIControl control;
    Meddler one;
    auto dead = std::make_unique<Meddler>();
    control.addTarget(dead.get(), &Meddler::first, up);
    control.addTarget(&one, &Meddler::first, down);
    control.addTarget(&one, &Meddler::second, up);
    for (int again = 0; again < 3; ++again)
        control.addTarget(&one, &Meddler::first, up | down);
    dead.reset();

    control.sendActionsForControlEvent(up);
    QCOMPARE(one.calls, u"21"_s);
    control.removeTarget(&one, up);
    control.sendActionsForControlEvent(up);
    QCOMPARE(one.calls, u"21"_s);
    control.sendActionsForControlEvent(down);
    control.removeTarget(nullptr, down);
    control.sendActionsForControlEvent(down);
    QCOMPARE(one.calls, u"211"_s);
}

using Meddling = std::function<void(std::unique_ptr<UIControl> &, std::unique_ptr<Meddler> &)>;

void ControlTest::actionsMayMeddle_data()
{
    QTest::addColumn<Meddling>("meddling");
    QTest::addColumn<QString>("later");
    QTest::newRow("remove") << Meddling([](auto &control, auto &) {
        control->removeTarget(nullptr, up);
    }) << "";
    QTest::newRow("add") << Meddling([](auto &control, auto &later) {
        for (unsigned event = 0; event < 20; ++event)
            control->addTarget(later.get(), &Meddler::second, UIControlEvent(1U << event));
    }) << "1";
    QTest::newRow("drop a target") << Meddling([](auto &, auto &later) { later.reset(); }) << "";
    QTest::newRow("drop the control")
        << Meddling([](auto &control, auto &) { control.reset(); }) << "";
}

void ControlTest::actionsMayMeddle()
{
    QFETCH(const Meddling, meddling);
    for (const UIControlEvent event : {down, up}) {
        auto control = std::make_unique<UIControl>();
        auto later = std::make_unique<Meddler>();
        Meddler first;
        first.meddle = [&] { meddling(control, later); };
        control->addTarget(&first, &Meddler::first, event);
        control->addTarget(later.get(), &Meddler::first, up);
        control->activate();
        QCOMPARE(first.calls, u"1"_s);
        if (event == up && later)
            QTEST(later->calls, "later");
    }
}

void ControlTest::fieldsTellOfEdits()
{
    RecordingHost host;
    const UIApplication application(host);
    UITextField field;
    UITextField other;
    EventLog log(field);
    QCOMPARE(field.text(), std::optional(QString()));
    field.becomeFirstResponder();
    field.edit(u"a"_s);
    field.edit(u"a"_s);
    field.setText(u"b"_s);
    field.edit(u"one\ntwo\u2028"_s); // pasted
    QCOMPARE(field.text(), std::optional(u"one two "_s));
    field.returnPressed();
    other.becomeFirstResponder();
    field.setText(std::nullopt);
    field.edit(QString());
    QCOMPARE(field.text(), std::nullopt);
    QCOMPARE(log.take(), u"begin changed changed return end"_s);
}

void ControlTest::keyboardsAreAskedFor_data()
{
    using Row = UITextInputTraits;
    using Hints = Qt::InputMethodHints;
    const Hints email =
        Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText;
    const Hints secret =
        Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
    QTest::addColumn<Row>("traits");
    QTest::addColumn<Hints>("hints");
    QTest::newRow("default") << Row{} << Hints();
    QTest::newRow("e-mail keys") << Row{.keyboardType = UIKeyboardType::EmailAddress} << email;
    QTest::newRow("e-mail") << Row{.textContentType = UITextContentType::EmailAddress} << email;
    QTest::newRow("no capitals") << Row{.autocapitalizationType =
                                            UITextAutocapitalizationType::None}
                                 << Hints(Qt::ImhNoAutoUppercase);
    QTest::newRow("no correction") << Row{.autocorrectionType = UITextAutocorrectionType::No}
                                   << Hints(Qt::ImhNoPredictiveText);
    QTest::newRow("secret ASCII") << Row{.keyboardType = UIKeyboardType::ASCIICapable,
                                         .secureTextEntry = true}
                                  << (Qt::ImhPreferLatin | secret);
}

void ControlTest::keyboardsAreAskedFor()
{
    QFETCH(const UITextInputTraits, traits);
    UITextField field;
    field.setInputTraits(traits);
    QTEST(field.inputMethodHints(), "hints");
}

void ControlTest::tapsAreFeltWhereThereIsAnApplication()
{
    const UIImpactFeedbackGenerator generator(UIImpactFeedbackStyle::Light);
    generator.impactOccurred();
    RecordingHost host;
    const UIApplication application(host);
    generator.impactOccurred();
    QCOMPARE(host.taps, 1);
}

WZT_TEST(ControlTest)
#include "ControlTest.moc"
