// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/UITextField.h"
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

/// What a touch does is tested as it is drawn.
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
        Meddler one;
        control.addTarget(&one, &Meddler::second, up);
        for (int again = 0; again < 3; ++again) {
            control.addTarget(&one, &Meddler::first, up | down);
        }
        control.sendActionsForControlEvent(up);
        control.removeTarget(&one, up);
        control.sendActionsForControlEvent(up);
        control.sendActionsForControlEvent(down);
        control.removeTarget(nullptr, down);
        control.sendActionsForControlEvent(down);
        QCOMPARE(one.calls, u"211"_s);
    }

    void actionsMayMeddle()
    {
        std::unique_ptr<UIControl> control;
        std::unique_ptr<Meddler> later;
        const std::function<void()> deeds[] = {
            [&] { control->removeTarget(nullptr, up); },
            [&] { later.reset(); },
            [&] { control.reset(); },
            [&] {
                for (unsigned event = 0; event < 20; ++event) {
                    control->addTarget(later.get(), &Meddler::second, UIControlEvent(1U << event));
                }
            },
        };
        for (const auto &deed : deeds) {
            for (const UIControlEvent event : {down, up}) {
                control = std::make_unique<UIControl>();
                later = std::make_unique<Meddler>();
                Meddler first;
                first.meddle = deed;
                control->addTarget(&first, &Meddler::first, event);
                control->addTarget(later.get(), &Meddler::first, up);
                control->activate();
                QCOMPARE(first.calls, u"1"_s);
                QVERIFY(!later || later->calls.isEmpty() == (&deed != &deeds[3]));
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
