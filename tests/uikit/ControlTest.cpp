// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UITextField.h"
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
    // What a touch does is tested as it is drawn.
    void strayTouchesAreIgnored()
    {
        UIControl control;
        EventLog log(control);
        control.continueTracking(true);
        control.endTracking(true);
        control.cancelTracking();
        QCOMPARE(log.take(), QString());
        control.beginTracking();
        control.beginTracking(); // a second finger
        control.endTracking(true);
        control.endTracking(true);
        QCOMPARE(log.take(), u"down* up"_s);
        control.activate(); // a key
        control.beginTracking();
        control.activate();
        control.endTracking(false);
        QCOMPARE(log.take(), u"down* up down* off"_s);
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

    void actionsMayMeddle()
    {
        using Owned = std::unique_ptr<UIControl>;
        using Later = std::unique_ptr<Meddler>;
        const std::pair<void (*)(Owned &, Later &), QString> rows[] = {
            {[](Owned &control, Later &) { control->removeTarget(nullptr, up); }, {}},
            {[](Owned &control, Later &later) {
                 for (unsigned event = 0; event < 20; ++event)
                     control->addTarget(later.get(), &Meddler::second, UIControlEvent(1U << event));
             },
             u"1"_s},
            {[](Owned &, Later &later) { later.reset(); }, {}},
            {[](Owned &control, Later &) { control.reset(); }, {}},
        };
        for (const auto &[meddle, calls] : rows) {
            for (const UIControlEvent event : {down, up}) {
                auto control = std::make_unique<UIControl>();
                auto later = std::make_unique<Meddler>();
                Meddler first;
                first.meddle = [&, act = meddle] { act(control, later); };
                control->addTarget(&first, &Meddler::first, event);
                control->addTarget(later.get(), &Meddler::first, up);
                control->activate();
                QCOMPARE(first.calls, u"1"_s);
                if (event == up && later)
                    QCOMPARE(later->calls, calls);
            }
        }
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
};

WZT_TEST(ControlTest)
#include "ControlTest.moc"
