// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/uikit/text/UITextField.h"
#include "tests/uikit/controls/EventLog.h"

using namespace Qt::StringLiterals;

namespace {

/// A target whose first action can change the control.
struct Target : QObject {
    QString calls;
    std::function<void()> change = [] {};

    void first(UIControl *)
    {
        calls += u'1';
        change();
    }
    void second() { calls += u'2'; }
};

constexpr auto up = UIControlEvent::TouchUpInside;
constexpr auto down = UIControlEvent::TouchDown;

} // namespace

/// Events and actions without a drawing; ControlsTest has the touches.
class ControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void strayTouchesAreIgnored()
    {
        UIControl control;
        EventLog log(control);
        control.continueTracking(true);
        control.endTracking(true);
        control.cancelTracking();
        control.beginTracking();
        control.beginTracking(); // a second finger
        control.activate(); // a key
        control.endTracking(false);
        control.endTracking(true);
        control.activate();
        QCOMPARE(log.take(), u"down* off down* up"_s);
    }

    void actionsStandOnceAndInOrder()
    {
        UIControl control;
        Target one;
        control.addTarget(&one, &Target::second, up);
        for (int again = 0; again < 3; ++again) {
            control.addTarget(&one, &Target::first, up | down);
        }
        control.sendActionsForControlEvent(up);
        control.removeTarget(&one, up);
        control.sendActionsForControlEvent(up);
        control.sendActionsForControlEvent(down);
        control.removeTarget(nullptr, down);
        control.sendActionsForControlEvent(down);
        QCOMPARE(one.calls, u"211"_s);
    }

    void actionsMayChangeTheControl()
    {
        std::unique_ptr<UIControl> control;
        std::unique_ptr<Target> later;
        const std::function<void()> changes[] = {
            [&] { control->removeTarget(nullptr, up); },
            [&] { later.reset(); },
            [&] { control.reset(); },
            [&] {
                for (unsigned event = 0; event < 20; ++event) {
                    control->addTarget(later.get(), &Target::second, UIControlEvent(1U << event));
                }
            },
        };
        for (const auto &change : changes) {
            for (const UIControlEvent event : {down, up}) {
                control = std::make_unique<UIControl>();
                later = std::make_unique<Target>();
                Target first;
                first.change = change;
                control->addTarget(&first, &Target::first, event);
                control->addTarget(later.get(), &Target::first, up);
                control->activate();
                QCOMPARE(first.calls, u"1"_s);
                QVERIFY(!later || later->calls.isEmpty() == (&change != &changes[3]));
            }
        }
    }

    void keyboardsAreAskedFor()
    {
        const Qt::InputMethodHints plain = Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText;
        const std::pair<UITextInputTraits, Qt::InputMethodHints> rows[] = {
            {{.autocorrectionType = UITextAutocorrectionType::No}, Qt::ImhNoPredictiveText},
            {{.textContentType = UITextContentType::EmailAddress},
             Qt::ImhEmailCharactersOnly | plain},
            {{.keyboardType = UIKeyboardType::ASCIICapable, .secureTextEntry = true},
             Qt::ImhPreferLatin | Qt::ImhHiddenText | Qt::ImhSensitiveData | plain},
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
