// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/WindowStage.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/presentation/DesktopWindow.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UITabBarController.h"
#include "tests/uikit/TestPage.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlEngine>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// Two tabs: Home, within a navigation controller and without a title of its tab, and Account.
struct Shell : WindowStage {
    std::shared_ptr<TestPage> home = make<TestPage>(u"Home"_s);
    std::shared_ptr<UINavigationController> navigation = make<UINavigationController>(home);
    std::shared_ptr<UITabBarController> tabs = make<UITabBarController>();

    explicit Shell(const DesktopAppearance &appearance = {}) : WindowStage(appearance)
    {
        const auto account = make<TestPage>(u"Account"_s);
        const UIImage mark = UIImage::imageNamed(u"testMark"_s);
        home->setTabBarItem(std::make_unique<UITabBarItem>(QString(), mark, 0));
        home->tabBarItem()->setAccessibilityLabel(u"Start"_s);
        account->setTabBarItem(std::make_unique<UITabBarItem>(u"Account"_s, mark, 1));
        tabs->setViewControllers({navigation, account});
    }
};

QQuickItem *textOf(const QQuickItem *item)
{
    for (QQuickItem *child : item->childItems()) {
        if (child->property("contentWidth").isValid()) {
            return child;
        }
    }
    return nullptr;
}

using Place = std::tuple<const char *, QSize, double>;

const QString longTitle = u"A title too long for this bar, by far"_s;

} // namespace

/// A window's bars and tabs: geometry, touch, keys, accessibility.
class BarsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void everythingKeepsItsPlace_data()
    {
        addCases<Place>({{"smallest", {320, 568}, 1},
                         {"smallest, large text", {320, 568}, 2},
                         {"tablet", {768, 1024}, 1}});
    }

    void everythingKeepsItsPlace()
    {
        const auto &[name, size, textScale] = currentCase<Place>();
        Shell shell({.textScale = textScale});
        shell.show(shell.tabs, {}, size);
        const QRectF bar = TestWindow::rect(shell.item(u"UINavigationBarView"_s));
        const QRectF page = TestWindow::rect(shell.named(u"Home"_s));
        const QRectF tabs = TestWindow::rect(shell.item(u"UITabBarView"_s));
        QCOMPARE(bar, QRectF(0, 0, size.width(), 44));
        QCOMPARE(page, QRectF(0, 44, size.width(), size.height() - 44 - 49));
        QCOMPARE(tabs, QRectF(0, page.bottom(), size.width(), 49));
        const QList<QQuickItem *> items = shell.items(u"UITabBarItemView"_s);
        QCOMPARE(TestWindow::rect(items.value(1)), QRectF(size.width() / 2.0, tabs.top(), 160, 49));
        // Without a title the picture has the middle.
        const QRectF picture = TestWindow::rect(shell.item(u"ImagePicture"_s));
        QCOMPARE(picture.size(), QSizeF(25, 25));
        const QPointF off = picture.center() - TestWindow::rect(items.value(0)).center();
        QVERIFY(off.manhattanLength() <= 1);

        // A title has the middle, and no button is cut.
        const auto form = make<TestPage>(longTitle);
        form->navigationItem()->setLeftBarButtonItem(make<UIBarButtonItem>(
            UIBarButtonSystemItem::Cancel, form.get(), &TestPage::loadViewIfNeeded));
        form->navigationItem()->setRightBarButtonItem(make<UIBarButtonItem>(
            u"Submit"_s, UIBarButtonItemStyle::Plain, form.get(), &TestPage::loadViewIfNeeded));
        shell.navigation->pushViewController(form, false);
        QVERIFY(shell.items(u"BackButton"_s).isEmpty());
        const QList<QQuickItem *> buttons = shell.items(u"UIBarButtonItemView"_s);
        const QRectF left = TestWindow::rect(textOf(buttons.at(0)));
        const QRectF right = TestWindow::rect(textOf(buttons.at(1)));
        const QRectF title = TestWindow::rect(textOf(shell.item(u"UINavigationBarView"_s)));
        QCOMPARE(left.left(), 16.0);
        QCOMPARE(right.right(), size.width() - 16.0);
        QVERIFY(qAbs(title.center().x() - size.width() / 2.0) <= 0.5);
        QVERIFY(title.width() > size.width() / 3.0);
        QVERIFY(left.right() < title.left() && title.right() < right.left());
        for (const QQuickItem *button : buttons) {
            QVERIFY(button->height() >= 44 && button->width() >= 44);
            QVERIFY2(!textOf(button)->property("truncated").toBool(), "a button's text is cut");
            QVERIFY(textOf(button)->property("contentWidth").toDouble() <= textOf(button)->width());
        }

        form->navigationItem()->setLeftBarButtonItem({});
        const QRectF back = TestWindow::rect(shell.item(u"BackButton"_s));
        QVERIFY(back.width() >= 44 && back.height() == 44);
        QVERIFY(!TestWindow::rect(textOf(shell.item(u"UINavigationBarView"_s))).intersects(back));
    }

    void tabsAreChosen()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            const bool mirrored = direction == Qt::RightToLeft;
            const Qt::Key forth = mirrored ? Qt::Key_Left : Qt::Key_Right;
            const Qt::Key back = mirrored ? Qt::Key_Right : Qt::Key_Left;
            Shell shell;
            shell.show(shell.tabs);
            const QList<QQuickItem *> tabs = shell.items(u"UITabBarItemView"_s);
            shell.tap(tabs[1]);
            QCOMPARE(shell.tabs->selectedIndex(), 1);
            shell.keys({Qt::Key_Tab, back, back}); // there is one tab before
            QCOMPARE(shell.focused(), u"Start"_s);
            shell.key(Qt::Key_Space);
            QCOMPARE(shell.tabs->selectedIndex(), 0);
            shell.key(forth);
            QVERIFY(tabs[1]->hasActiveFocus() && tabs[1]->property("focusVisible").toBool());
            shell.key(Qt::Key_Return);
            QCOMPARE(shell.tabs->selectedIndex(), 1);
        }
    }

    void tabsAreDrawnOnceTheyAreSeen()
    {
        Shell shell;
        const auto login = make<TestPage>(u"Login"_s);
        shell.show(shell.tabs, login);
        QCOMPARE(shell.focused(), u"Login"_s);
        QVERIFY(!shell.item(u"UITabBarView"_s));
        login->dismissViewControllerAnimated(true);
        shell.settle();
        QCOMPARE(shell.focused(), u"Home"_s);
        QVERIFY(shell.item(u"UITabBarView"_s) && !shell.named(u"Account"_s));

        shell.tabs->setSelectedIndex(1);
        const QPointer<QQuickItem> account = shell.named(u"Account"_s);
        shell.tabs->presentViewController(make<TestPage>(u"Modal"_s), false);
        shell.tabs->setSelectedIndex(0);
        shell.tabs->dismissViewControllerAnimated(false);
        QVERIFY(account && !account->isVisible() && shell.named(u"Home"_s)->isVisible());
        QCOMPARE(shell.focused(), u"Home"_s);
    }

    void theWindowEndsByKey()
    {
        Shell shell;
        shell.show(shell.tabs);
        const QSignalSpy quits(shell.view().engine(), &QQmlEngine::quit);
        shell.key(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(quits.size(), 1);
    }

    // Without a plugin of Qt's for SVG files, which would offer no sizes.
    void theWindowHasAnIcon()
    {
        const WindowStage stage;
        DesktopWindow desktop(*stage.window, u"Test"_s, u":/assets/testMark.svg"_s);
        desktop.show();
        QTRY_VERIFY(!desktop.view().icon().isNull());
        const QIcon icon = desktop.view().icon();
        QList<int> widths;
        for (const QSize &size : icon.availableSizes()) {
            widths.append(size.width());
            const QImage picture = icon.pixmap(size, 1.0).toImage();
            QCOMPARE(picture.pixelColor(size.width() / 4, size.height() / 2), QColor(Qt::red));
        }
        QCOMPARE(widths, (QList<int>{16, 32, 48, 64, 128}));
    }
};

WZT_TEST(BarsTest)
#include "BarsTest.moc"
