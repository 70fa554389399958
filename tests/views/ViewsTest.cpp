// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/base/Make.h"
#include "views/PressedColor.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTThanksTableViewCell.h"

using namespace Qt::StringLiterals;

namespace {

using Components = std::vector<double>;

struct Listener : QObject {
    void pressed() { ++count; }
    int count = 0;
};

const UIColor blue = UIColor::colorWithRed(0.106, 0.506, 0.906, 1);

} // namespace

/// The cells and the glossy button: texts, colours, touches and shine.
class ViewsTest : public QObject {
    Q_OBJECT

    TestApp m_app;

private Q_SLOTS:
    void init() { m_app.launch(); }

    void aCardShowsWhoIsSignedIn()
    {
        const auto card = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
        const auto shown = [&] {
            const QStringList lines{card->userNameLabel()->text(), card->emailLabel()->text(),
                                    card->userSinceLabel()->text()};
            return lines.join(u'|');
        };
        Listener listener;
        card->editButton()->addTarget(&listener, &Listener::pressed, UIControlEvent::TouchUpInside);
        WZTUser user(42, u"jo@wzt.example"_s, u"Jo"_s);
        user.joinDate = NSDate{816'564'600}; // 2026-11-16 23:30 UTC, which is the 17th here
        m_app.delegate().setCurrentUser(user);
        QCOMPARE(shown(), u"||#0 Joined (null)"_s); // filled when it is made, and at reuse
        card->prepareForReuse();
        QCOMPARE(shown(), u"Jo|jo@wzt.example|#42 Joined Nov 17, 2026"_s);
        card->editButton()->activate();
        QCOMPARE(listener.count, 0);
    }

    void looksByVersion()
    {
        for (const double version : {12.0, 13.0}) {
            m_app.application().traits().setSystemVersion(version);
            const bool adapts = version >= 13;
            const auto are = [&](std::initializer_list<UIColor> colors, const UIColor &adaptive,
                                 const UIColor &fixed) {
                return std::ranges::all_of(colors, [&](const UIColor &color) {
                    return color.toQColor(true) == (adapts ? adaptive : fixed).toQColor(true);
                });
            };
            const auto card = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
            const auto thanks = make<WZTThanksTableViewCell>(UITableViewCellStyle::Default, u"t"_s);
            const auto curve = card->cardBackgroundView()->layer().cornerCurve;
            QCOMPARE(curve == CALayer::CornerCurve::Continuous, adapts);
            QVERIFY(are({card->cardBackgroundView()->backgroundColor(), thanks->backgroundColor()},
                        UIColor::secondarySystemGroupedBackgroundColor(), UIColor::whiteColor()));
            QVERIFY(are({card->headerLabel()->textColor(), card->userNameLabel()->textColor(),
                         card->emailLabel()->textColor(), thanks->thanksLabel()->textColor()},
                        UIColor::labelColor(), UIColor::blackColor()));
            QVERIFY(are({card->userNameTitleLabel()->textColor(),
                         card->emailTitleLabel()->textColor(), card->userSinceLabel()->textColor()},
                        UIColor::secondaryLabelColor(), UIColor::grayColor()));
            QVERIFY(are({card->dividerOneView()->backgroundColor(),
                         card->dividerTwoView()->backgroundColor(),
                         card->dividerThreeView()->backgroundColor()},
                        UIColor::separatorColor(), UIColor::grayColor()));
            QVERIFY(thanks->heartImageView()->image().isTemplate());
            QVERIFY(thanks->heartImageView()->tintColor() == UIColor::redColor());
        }
    }

    void aPressDarkens()
    {
        const std::pair<UIColor, Components> rows[] = {
            {blue, {-0.094, 0.306, 0.706, 1}},
            {UIColor::colorWithRed(1, 0.5, 0.2, 0.3), {0.8, 0.3, 0, 0.3}},
            {UIColor::colorWithWhite(0.1, 0.5), {-0.1, -0.1, -0.1, 0.5}},
            {UIColor::blackColor(), {0.2, 1}},
            {UIColor::colorWithRed(0, 0, 0, 0.5), {0.2, 0.5}},
            {UIColor::colorWithCGColor({0.5, 0.1, 0, 0.4}), {0.3, -0.1, -0.2, 0.4}},
            {UIColor::colorWithCGColor({0.7, 0.4}), {0.5, 0.5, 0.5, 0.4}},
            {UIColor::colorWithCGColor({0.1, 0.2, 0.3, 0.4, 1}), {}},
            {UIColor(), {}},
        };
        const auto text = [](const Components &components) {
            QStringList numbers;
            for (const double component : components) {
                numbers.append(QString::number(component, 'f', 6));
            }
            return numbers.join(u' ');
        };
        for (const auto &[color, expected] : rows) {
            QCOMPARE(text(pressedColor(color).components()), text(expected));
        }
        QCOMPARE(pressedColor(blue).toQColor(false).name(), u"#004eb4"_s); // clamped
    }

    // The letters: a finger goes down, out, in again and up, or the system cancels its touch.
    void aButtonIsTouched()
    {
        const std::tuple<const char *, bool, int> rows[] = {
            {"d", true, 0},     {"du", false, 1},  {"do", false, 0}, {"doi", true, 0},
            {"doiu", false, 1}, {"dou", false, 0}, {"dc", true, 0},  {"dcdu", false, 1},
        };
        for (const auto &[touches, isPressed, actions] : rows) {
            WZTGlossyButton button(QRectF(), blue);
            Listener listener;
            button.addTarget(&listener, &Listener::pressed, UIControlEvent::TouchUpInside);
            bool inside = true;
            for (const char touch : std::string_view(touches)) {
                if (touch == 'd') {
                    button.beginTracking();
                } else if (touch == 'u') {
                    button.endTracking(inside);
                } else if (touch == 'c') {
                    button.cancelTracking();
                } else {
                    button.continueTracking(inside = touch == 'i');
                }
            }
            QVERIFY2(button.backgroundColor() == (isPressed ? pressedColor(blue) : blue), touches);
            QVERIFY2(listener.count == actions, touches);
            button.setButtonColor(UIColor::redColor()); // even while pressed
            QVERIFY(button.backgroundColor() == UIColor::redColor());
        }
    }

    void theShineKeepsTheSizeThatTheButtonWasMadeWith()
    {
        const WZTGlossyButton made(QRectF(5, 7, 200, 50), blue);
        const CALayer layer = made.layer();
        QVERIFY(layer.cornerRadius == 8 && layer.borderWidth == 2 && layer.masksToBounds);
        QVERIFY(layer.borderColor == UIColor::colorWithWhite(0.4, 0.2));
        QCOMPARE(layer.sublayers.size(), std::size_t{1});
        const CAGradientLayer &shine = layer.sublayers[0];
        QCOMPARE(shine.frame, QRectF(0, 0, 200, 50));
        QCOMPARE(shine.locations, Components({0, 0.5, 0.5, 0.8, 1}));
        const Components whites[] = {{1, 0.4}, {1, 0.2}, {0.75, 0.2}, {0.4, 0.2}, {1, 0.4}};
        for (std::size_t i = 0; i < 5; ++i) {
            QCOMPARE(shine.colors[i].components(), whites[i]);
        }
        WZTButtonTableViewCell cell(UITableViewCellStyle::Default, u"button"_s);
        QVERIFY(cell.button()->layer().sublayers[0].frame.isEmpty());
        QVERIFY(cell.button()->buttonColor() == blue);
        // Its button stands on a band like any other row's.
        QCOMPARE(cell.backgroundColor().toQColor(false),
                 UITableViewCell().backgroundColor().toQColor(false));
        QCOMPARE(cell.contentView()->backgroundColor().toQColor(false), QColor(Qt::transparent));
    }
};

WZT_TEST(ViewsTest)
#include "ViewsTest.moc"
