// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIBarButtonItem.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
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

} // namespace

/// Buttons beside a bar's title.
class BarButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void barButtonsLeaveTheTitleTheMiddle_data();
    void barButtonsLeaveTheTitleTheMiddle();
    void barButtonsArePressed();
    void escapeCancelsWhereNothingIsLost();
};

void BarButtonsTest::barButtonsLeaveTheTitleTheMiddle_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("textScale");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int width : {320, 390}) {
        for (const double scale : {1.0, 2.0}) {
            QTest::addRow("%d at %g", width, scale) << width << scale << Qt::LeftToRight;
            QTest::addRow("%d at %g, mirrored", width, scale) << width << scale << Qt::RightToLeft;
        }
    }
}

void BarButtonsTest::barButtonsLeaveTheTitleTheMiddle()
{
    QFETCH(const int, width);
    QFETCH(const double, textScale);
    QFETCH(const Qt::LayoutDirection, direction);
    const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QGuiApplication::setLayoutDirection(direction);
    WindowFixture fixture({.textScale = textScale});
    const auto page = make<FormPage>(u"A title too long for this bar, by far"_s);
    fixture.show(make<UINavigationController>(page), {}, {width, 568});
    const auto text = [](const QQuickItem *item) {
        for (QQuickItem *child : item->childItems()) {
            if (child->property("contentWidth").isValid())
                return child;
        }
        return static_cast<QQuickItem *>(nullptr);
    };
    QList<QQuickItem *> buttons = fixture.items(u"UIBarButtonItemView"_s);
    if (direction == Qt::RightToLeft)
        buttons.swapItemsAt(0, 1);
    const QRectF left = WindowFixture::rect(text(buttons.at(0)));
    const QRectF right = WindowFixture::rect(text(buttons.at(1)));
    const QRectF title = WindowFixture::rect(text(fixture.item(u"UINavigationBarView"_s)));
    QCOMPARE(left.left(), 16.0);
    QCOMPARE(right.right(), width - 16.0);
    QVERIFY(qAbs(title.center().x() - width / 2.0) <= 0.5);
    QVERIFY(title.width() > width / 3.0);
    QVERIFY(left.right() < title.left() && title.right() < right.left());
    for (const QQuickItem *button : buttons) {
        QVERIFY(button->height() >= 44 && button->width() >= 44);
        QVERIFY2(!text(button)->property("truncated").toBool(), "a button's text is cut");
        QVERIFY(text(button)->property("contentWidth").toDouble() <= text(button)->width());
    }
    QVERIFY(!fixture.item(u"UIBackButtonView"_s)->isVisible());
}

void BarButtonsTest::barButtonsArePressed()
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
    QAccessible::queryAccessibleInterface(buttons.at(1))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(page->pressed, u"Cancel Submit Add "_s);
    page->navigationItem()->setLeftBarButtonItem({});
    QVERIFY(fixture.item(u"UIBackButtonView"_s)->isVisible());
}

void BarButtonsTest::escapeCancelsWhereNothingIsLost()
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

WZT_TEST(BarButtonsTest)
#include "BarButtonsTest.moc"
