// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/Make.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"
#include "views/WZTPackageTableViewCell.h"
#include "views/WZTThanksTableViewCell.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

WZTUser jo()
{
    WZTUser user(42, u"jo@wzt.example"_s, u"Jo"_s);
    // 2026-11-16 23:30 UTC, which is the 17th in Berlin and the 16th in New York.
    user.joinDate = NSDate{816'564'600};
    return user;
}

} // namespace

/// What the small cells and the account card show.
class AccountCellTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void joinLine_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("line");
        QTest::newRow("US English") << QByteArray("en_US.UTF-8") << QByteArray("America/New_York")
                                    << u"#42 Joined Nov 16, 2026"_s;
        QTest::newRow("German") << QByteArray("de_DE.UTF-8") << QByteArray("Europe/Berlin")
                                << u"#42 Joined 17.11.2026"_s;
        QTest::newRow("Japanese") << QByteArray("ja_JP.UTF-8") << QByteArray("Asia/Tokyo")
                                  << u"#42 Joined 2026/11/17"_s;
    }

    void joinLine()
    {
        QFETCH(const QByteArray, locale);
        QFETCH(const QByteArray, zone);
        const QByteArray oldLocale = qgetenv("LC_ALL");
        const QByteArray oldZone = qgetenv("TZ");
        qputenv("LC_ALL", locale);
        qputenv("TZ", zone);
        const auto restore = qScopeGuard([&] {
            qputenv("LC_ALL", oldLocale);
            qputenv("TZ", oldZone);
        });
        TestApp app;
        app.keepUser(jo());
        app.launch();
        const auto cell = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
        QTEST(cell->userSinceLabel()->text(), "line");
    }

    void whoIsSignedIn()
    {
        TestApp app;
        app.launch();
        const auto cell = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
        const auto shown = [&] {
            return QStringList{cell->userNameLabel()->text(), cell->emailLabel()->text(),
                               cell->userSinceLabel()->text()};
        };
        QCOMPARE(shown(), QStringList({u""_s, u""_s, u"#0 Joined (null)"_s}));
        WZTUser user = jo();
        user.joinDate.reset();
        app.delegate().setCurrentUser(user);
        QCOMPARE(shown().last(), u"#0 Joined (null)"_s); // filled when it is made, and at reuse
        cell->prepareForReuse();
        QCOMPARE(shown(), QStringList({u"Jo"_s, u"jo@wzt.example"_s, u"#42 Joined (null)"_s}));
    }

    void aReusedCardHasNoActionUntilItGetsOne()
    {
        TestApp app;
        app.launch();
        struct Listener : QObject {
            void pressed() { ++count; }
            int count = 0;
        } listener;
        const auto cell = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
        cell->editButton()->addTarget(&listener, &Listener::pressed, UIControlEvent::TouchUpInside);
        cell->editButton()->activate();
        cell->prepareForReuse();
        cell->editButton()->activate();
        QCOMPARE(listener.count, 1);
    }

    void looksByVersion()
    {
        for (const double version : {12.0, 13.0}) {
            TestApp app;
            app.launch();
            app.application().traits().setSystemVersion(version);
            const bool adapts = version >= 13;
            const auto is = [&](const UIColor &color, const UIColor &adaptive,
                                const UIColor &fixed) {
                return color.drawn(true) == (adapts ? adaptive : fixed).drawn(true);
            };
            const auto card = make<WZTAccountTableViewCell>(UITableViewCellStyle::Default, u"a"_s);
            const UIColor background = UIColor::secondarySystemGroupedBackgroundColor();
            QVERIFY(is(card->cardBackgroundView()->backgroundColor(), background,
                       UIColor::whiteColor()));
            QCOMPARE(card->cardBackgroundView()->layer().cornerCurve
                         == CALayer::CornerCurve::Continuous,
                     adapts);
            for (UILabel *label : {card->headerLabel(), card->userNameLabel(), card->emailLabel()})
                QVERIFY(is(label->textColor(), UIColor::labelColor(), UIColor::blackColor()));
            for (UILabel *caption :
                 {card->userNameTitleLabel(), card->emailTitleLabel(), card->userSinceLabel()})
                QVERIFY(
                    is(caption->textColor(), UIColor::secondaryLabelColor(), UIColor::grayColor()));
            for (UIView *line :
                 {card->dividerOneView(), card->dividerTwoView(), card->dividerThreeView()})
                QVERIFY(
                    is(line->backgroundColor(), UIColor::separatorColor(), UIColor::grayColor()));
            const auto thanks = make<WZTThanksTableViewCell>(UITableViewCellStyle::Default, u"t"_s);
            QVERIFY(is(thanks->backgroundColor(), background, UIColor::whiteColor()));
            QVERIFY(is(thanks->thanksLabel()->textColor(), UIColor::labelColor(),
                       UIColor::blackColor()));
        }
    }

    void smallCells()
    {
        TestApp app;
        app.launch();
        const auto header = make<WZTHeaderTableViewCell>(UITableViewCellStyle::Default, u"h"_s);
        QCOMPARE(header->logoImageView()->image().name(), u"wztLogo"_s);
        QVERIFY(!header->logoImageView()->image().isTemplate());
        const auto thanks = make<WZTThanksTableViewCell>(UITableViewCellStyle::Default, u"t"_s);
        QCOMPARE(thanks->thanksLabel()->text(), u"Thanks for the support!"_s);
        QVERIFY(thanks->heartImageView()->image().isTemplate());
        QVERIFY(thanks->heartImageView()->tintColor() == UIColor::redColor());
        const auto package = make<WZTPackageTableViewCell>(UITableViewCellStyle::Default, u"p"_s);
        QVERIFY(!package->packageImageView() && !package->titleLabel() && !package->detailLabel());
    }
};

WZT_TEST(AccountCellTest)
#include "AccountCellTest.moc"
