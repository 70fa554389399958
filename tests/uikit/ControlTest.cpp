// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIImpactFeedbackGenerator.h"
#include "platform/uikit/UITextField.h"
#include "tests/support/Cases.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/EventLog.h"

#include <map>

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

using Touch = std::tuple<const char *, const char *, const char *>;
using Meddling =
    std::tuple<const char *, void (*)(std::unique_ptr<UIControl> &, std::unique_ptr<Meddler> &),
               const char *>;

} // namespace

class ControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void touchesBecomeEvents_data()
    {
        addCases<Touch>({
            {"slide", "biI", "down* inside* up"},
            {"slide out, let go", "booO", "down* exit outside outside off"},
            {"out and back in", "boiI", "down* exit outside enter* inside* up"},
            {"taken away", "bocoI", "down* exit outside cancel"},
            {"second finger", "bbII", "down* up"},
            {"never begun", "ioIOc", ""},
            {"key during a touch", "abaO", "down* up down* off"},
        });
    }

    void touchesBecomeEvents()
    {
        const std::map<char, void (*)(UIControl &)> steps{
            {'b', [](UIControl &control) { control.beginTracking(); }},
            {'i', [](UIControl &control) { control.continueTracking(true); }},
            {'o', [](UIControl &control) { control.continueTracking(false); }},
            {'I', [](UIControl &control) { control.endTracking(true); }},
            {'O', [](UIControl &control) { control.endTracking(false); }},
            {'c', [](UIControl &control) { control.cancelTracking(); }},
            {'a', [](UIControl &control) { control.activate(); }},
        };
        const auto &[name, touch, events] = currentCase<Touch>();
        UIControl control;
        EventLog log(control);
        for (const char step : std::string_view(touch))
            steps.at(step)(control);
        QCOMPARE(log.take(), QLatin1String(events));
    }

    void actionsStandOnceAndInOrder()
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

    void actionsMayMeddle_data()
    {
        addCases<Meddling>({
            {"remove", [](auto &control, auto &) { control->removeTarget(nullptr, up); }, ""},
            {"add",
             [](auto &control, auto &later) {
                 for (unsigned event = 0; event < 20; ++event)
                     control->addTarget(later.get(), &Meddler::second, UIControlEvent(1U << event));
             },
             "1"},
            {"drop a target", [](auto &, auto &later) { later.reset(); }, ""},
            {"drop the control", [](auto &control, auto &) { control.reset(); }, ""},
        });
    }

    void actionsMayMeddle()
    {
        const auto &[name, meddling, calls] = currentCase<Meddling>();
        for (const UIControlEvent event : {down, up}) {
            auto control = std::make_unique<UIControl>();
            auto later = std::make_unique<Meddler>();
            Meddler first;
            first.meddle = [&, meddle = meddling] { meddle(control, later); };
            control->addTarget(&first, &Meddler::first, event);
            control->addTarget(later.get(), &Meddler::first, up);
            control->activate();
            QCOMPARE(first.calls, u"1"_s);
            if (event == up && later)
                QCOMPARE(later->calls, QLatin1String(calls));
        }
    }

    void fieldsTellOfEdits()
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

    void keyboardsAreAskedFor()
    {
        const Qt::InputMethodHints email =
            Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText;
        const Qt::InputMethodHints secret = Qt::ImhHiddenText | Qt::ImhSensitiveData
            | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
        const std::pair<UITextInputTraits, Qt::InputMethodHints> rows[] = {
            {{}, {}},
            {{.keyboardType = UIKeyboardType::EmailAddress}, email},
            {{.textContentType = UITextContentType::EmailAddress}, email},
            {{.autocapitalizationType = UITextAutocapitalizationType::None},
             Qt::ImhNoAutoUppercase},
            {{.autocorrectionType = UITextAutocorrectionType::No}, Qt::ImhNoPredictiveText},
            {{.keyboardType = UIKeyboardType::ASCIICapable, .secureTextEntry = true},
             Qt::ImhPreferLatin | secret},
        };
        for (const auto &[traits, hints] : rows) {
            UITextField field;
            field.setInputTraits(traits);
            QCOMPARE(field.inputMethodHints(), hints);
        }
    }

    void tapsAreFeltWhereThereIsAnApplication()
    {
        const UIImpactFeedbackGenerator generator(UIImpactFeedbackStyle::Light);
        generator.impactOccurred();
        RecordingHost host;
        const UIApplication application(host);
        generator.impactOccurred();
        QCOMPARE(host.taps, 1);
    }
};

WZT_TEST(ControlTest)
#include "ControlTest.moc"
