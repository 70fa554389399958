// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A page with Cancel at the left and "Submit" or, in its place, a plus at the right.
struct FormPage : TestPage {
    QString pressed;
    bool isPrecious = false;

    explicit FormPage(const QString &title) : TestPage(title)
    {
        navigationItem()->setLeftBarButtonItem(
            make<UIBarButtonItem>(UIBarButtonSystemItem::Cancel, this, &FormPage::note));
        navigationItem()->setRightBarButtonItem(
            make<UIBarButtonItem>(u"Submit"_s, UIBarButtonItemStyle::Plain, this, &FormPage::note));
    }
    void note(UIBarButtonItem *sender)
    {
        pressed += sender->title() + u' ';
        if (sender == navigationItem()->rightBarButtonItem())
            navigationItem()->setRightBarButtonItem(
                make<UIBarButtonItem>(UIBarButtonSystemItem::Add, this, &FormPage::note));
    }
    [[nodiscard]] bool isModalInPresentation() const override { return isPrecious; }
};

QQuickItem *textOf(const QQuickItem *item)
{
    for (QQuickItem *child : item->childItems()) {
        if (child->property("contentWidth").isValid())
            return child;
    }
    return nullptr;
}

using Place = std::tuple<const char *, int, double, Qt::LayoutDirection>;

} // namespace

/// The buttons of a navigation bar.
class BarButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTitleKeepsTheMiddle_data()
    {
        addCases<Place>({{"smallest", 320, 1, Qt::LeftToRight},
                         {"smallest, large text", 320, 2, Qt::LeftToRight},
                         {"smallest, large text, mirrored", 320, 2, Qt::RightToLeft},
                         {"phone, mirrored", 390, 1, Qt::RightToLeft},
                         {"phone, large text", 390, 2, Qt::LeftToRight}});
    }

    void theTitleKeepsTheMiddle()
    {
        const auto &[name, width, textScale, direction] = currentCase<Place>();
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        QGuiApplication::setLayoutDirection(direction);
        WindowFixture fixture({.textScale = textScale});
        const auto page = make<FormPage>(u"A title too long for this bar, by far"_s);
        fixture.show(make<UINavigationController>(page), {}, {width, 568});
        QList<QQuickItem *> buttons = fixture.items(u"UIBarButtonItemView"_s);
        if (direction == Qt::RightToLeft)
            buttons.swapItemsAt(0, 1);
        const QRectF left = WindowFixture::rect(textOf(buttons.at(0)));
        const QRectF right = WindowFixture::rect(textOf(buttons.at(1)));
        const QRectF title = WindowFixture::rect(textOf(fixture.item(u"UINavigationBarView"_s)));
        QCOMPARE(left.left(), 16.0);
        QCOMPARE(right.right(), width - 16.0);
        QVERIFY(qAbs(title.center().x() - width / 2.0) <= 0.5);
        QVERIFY(title.width() > width / 3.0);
        QVERIFY(left.right() < title.left() && title.right() < right.left());
        for (const QQuickItem *button : buttons) {
            QVERIFY(button->height() >= 44 && button->width() >= 44);
            QVERIFY2(!textOf(button)->property("truncated").toBool(), "a button's text is cut");
            QVERIFY(textOf(button)->property("contentWidth").toDouble() <= textOf(button)->width());
        }
    }

    void theyArePressed()
    {
        WindowFixture fixture;
        const auto page = make<FormPage>(u"Form"_s);
        const auto navigation = make<UINavigationController>(make<TestPage>(u"Home"_s));
        navigation->pushViewController(page, false);
        fixture.show(navigation);
        QVERIFY(!fixture.item(u"UIBackButtonView"_s)->isVisible());
        const QList<QQuickItem *> buttons = fixture.items(u"UIBarButtonItemView"_s);
        fixture.key(Qt::Key_Tab);
        QCOMPARE(fixture.focused(), u"Cancel"_s);
        fixture.key(Qt::Key_Space);
        fixture.tap(buttons.at(1)); // puts another in its place
        QVERIFY(fixture.accessible().contains(u"Button Add"_s));
        auto *press = QAccessible::queryAccessibleInterface(buttons.at(1))->actionInterface();
        press->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(page->pressed, u"Cancel Submit Add "_s);
        page->navigationItem()->setLeftBarButtonItem({});
        QVERIFY(fixture.item(u"UIBackButtonView"_s)->isVisible());
    }

    void escapeCancelsWhereNothingIsLost()
    {
        WindowFixture fixture;
        const auto page = make<FormPage>(u"Form"_s);
        fixture.show(make<TestPage>(u"Home"_s), make<UINavigationController>(page));
        page->isPrecious = true;
        fixture.key(Qt::Key_Escape);
        QCOMPARE(page->pressed, QString());
        page->isPrecious = false;
        fixture.key(Qt::Key_Escape);
        QCOMPARE(page->pressed, u"Cancel "_s);
        page->navigationItem()->setLeftBarButtonItem(make<UIBarButtonItem>(
            u"Other"_s, UIBarButtonItemStyle::Plain, page.get(), &FormPage::note));
        fixture.key(Qt::Key_Escape);
        QCOMPARE(page->pressed, u"Cancel "_s);
    }
};

WZT_TEST(BarButtonTest)
#include "BarButtonTest.moc"
