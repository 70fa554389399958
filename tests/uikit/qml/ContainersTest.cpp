// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/uikit/UITabBarController.h"
#include "platform/uikit/UITabBarItem.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/WindowFixture.h"

#include <QAccessible>
#include <QMetaClassInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Windows, bars and tabs: geometry, touch, keys, accessibility.
class ContainersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNamedDrawingLoads();
    void windowEnds();
    void barsKeepTheirPlaces_data();
    void barsKeepTheirPlaces();
    void barsFollowTheStyle();
    void waysBack_data();
    void waysBack();
    void longTitlesLeaveTheBackButton();
    void barButtonsLeaveTheTitleTheMiddle_data();
    void barButtonsLeaveTheTitleTheMiddle();
    void barButtonsArePressed();
    void escapeCancelsWhereNothingIsLost();
    void tabsAreChosen();
};

namespace {

struct Shell {
    std::shared_ptr<TestPage> home = make<TestPage>(u"Home"_s);
    std::shared_ptr<UINavigationController> navigation = make<UINavigationController>(home);
    std::shared_ptr<UITabBarController> tabs = make<UITabBarController>();

    Shell()
    {
        const auto account = make<TestPage>(u"Account"_s);
        const UIImage mark = UIImage::imageNamed(u"testMark"_s);
        home->setTabBarItem(std::make_unique<UITabBarItem>(QString(), mark, 0));
        home->tabBarItem()->setAccessibilityLabel(u"Start"_s);
        account->setTabBarItem(std::make_unique<UITabBarItem>(u"Account"_s, mark, 1));
        tabs->setViewControllers({navigation, account});
    }
};

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

void ContainersTest::everyNamedDrawingLoads()
{
    WindowFixture fixture;
    fixture.show(make<TestPage>());
    QStringList loaded;
    for (int id = QMetaType::User; id < QMetaType::User + 4096; ++id) {
        const QMetaObject *type =
            QMetaType::isRegistered(id) ? QMetaType(id).metaObject() : nullptr;
        const int info = type ? type->indexOfClassInfo("view") : -1;
        const QString file =
            info < 0 ? QString() : QString::fromLatin1(type->classInfo(info).value());
        if (!file.startsWith(u"UIKit/"_s))
            continue;
        QQmlComponent component(fixture.host->view().engine(), QUrl(u"qrc:/qt/qml/"_s + file));
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
        loaded.append(file);
    }
    QVERIFY(loaded.contains(u"UIKit/UIAlertControllerView.qml"_s));
    QVERIFY(loaded.contains(u"UIKit/UITabBarControllerView.qml"_s));
}

void ContainersTest::windowEnds()
{
    WindowFixture fixture;
    fixture.show(make<TestPage>(u"Root"_s));
    QCOMPARE(fixture.host->view().size(), QSize(390, 844));
    QCOMPARE(fixture.host->view().minimumSize(), QSize(320, 568));
    const QSignalSpy quits(fixture.host->view().engine(), &QQmlEngine::quit);
    fixture.key(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(quits.size(), 1);
}

void ContainersTest::barsKeepTheirPlaces_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("textScale");
    QTest::addColumn<QRectF>("secondTab");
    QTest::newRow("smallest") << QSize(320, 568) << 1.0 << QRectF(160, 519, 160, 49);
    QTest::newRow("smallest, large text") << QSize(320, 568) << 2.0 << QRectF(160, 519, 160, 49);
    QTest::newRow("phone") << QSize(390, 844) << 1.0 << QRectF(195, 795, 160, 49);
    QTest::newRow("tablet") << QSize(768, 1024) << 1.0 << QRectF(384, 975, 160, 49);
}

void ContainersTest::barsKeepTheirPlaces()
{
    QFETCH(const QSize, size);
    QFETCH(const double, textScale);
    QFETCH(const QRectF, secondTab);
    WindowFixture fixture({.textScale = textScale});
    const Shell shell;
    fixture.show(shell.tabs, {}, size);
    const QRectF bar = WindowFixture::rect(fixture.item(u"UINavigationBarView"_s));
    const QRectF page = WindowFixture::rect(fixture.named(u"Home"_s));
    const QRectF tabs = WindowFixture::rect(fixture.item(u"UITabBarView"_s));
    QCOMPARE(bar, QRectF(0, 0, size.width(), 44));
    QCOMPARE(page.topLeft(), bar.bottomLeft());
    QCOMPARE(page.bottomRight(), tabs.topRight());
    QCOMPARE(tabs.bottomRight(), QPointF(size.width(), size.height()));
    const QList<QQuickItem *> items = fixture.items(u"UITabBarItemView"_s);
    QCOMPARE(WindowFixture::rect(items.value(1)), secondTab);
    // Without a title the picture has the middle.
    const QRectF picture = WindowFixture::rect(fixture.item(u"UIImagePicture"_s));
    QCOMPARE(picture.size(), QSizeF(25, 25));
    const QPointF off = picture.center() - WindowFixture::rect(items.value(0)).center();
    QVERIFY(off.manhattanLength() <= 1);
}

void ContainersTest::barsFollowTheStyle()
{
    WindowFixture fixture;
    const Shell shell;
    fixture.show(shell.tabs);
    UITraits &traits = fixture.application.traits();
    for (const auto style : {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark}) {
        traits.setOverride(UIAppearance{.style = style});
        const QImage image = fixture.host->view().grabWindow();
        QCOMPARE(image.pixelColor(2, 20), traits.barColor());
        QCOMPARE(image.pixelColor(2, 830), traits.barColor());
        QCOMPARE(image.pixelColor(2, 100), traits.backgroundColor());
        QVERIFY(image.pixelColor(2, 43) != traits.barColor());
        QVERIFY(image.pixelColor(2, 795) != traits.barColor());
    }
}

void ContainersTest::waysBack_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("touch") << Qt::Key_unknown << Qt::KeyboardModifiers();
    QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Left") << Qt::Key_Left << Qt::KeyboardModifiers(Qt::AltModifier);
}

void ContainersTest::waysBack()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    WindowFixture fixture;
    const Shell shell;
    fixture.show(shell.tabs);
    QVERIFY(!fixture.item(u"UIBackButtonView"_s)->isVisible());
    shell.navigation->pushViewController(make<TestPage>(u"Projects"_s), true);
    fixture.settle();
    QCOMPARE(fixture.focused(), u"Projects"_s);
    const QStringList names = fixture.accessible();
    QVERIFY(names.contains(u"Button Back to Home"_s) && names.contains(u"Heading Projects"_s));
    QVERIFY(!names.contains(u"EditableText Home"_s));

    if (key == Qt::Key_unknown) {
        fixture.tap(fixture.item(u"UIBackButtonView"_s));
    } else {
        fixture.key(key, modifiers);
    }
    fixture.settle();
    QCOMPARE(shell.navigation->topViewController(), shell.home.get());
    QCOMPARE(fixture.focused(), u"Home"_s);
    QVERIFY(!fixture.accessible().contains(u"Button Back"_s));
    // There is nothing to go back to any more.
    if (key != Qt::Key_unknown)
        fixture.key(key, modifiers);
    QCOMPARE(shell.home->appeared, 2);
}

void ContainersTest::longTitlesLeaveTheBackButton()
{
    WindowFixture fixture({.textScale = 2});
    const Shell shell;
    fixture.show(shell.tabs, {}, {320, 568});
    shell.navigation->pushViewController(make<TestPage>(u"A title too long for the bar"_s), false);
    const QRectF back = WindowFixture::rect(fixture.item(u"UIBackButtonView"_s));
    QCOMPARE(back.size(), QSizeF(44, 44));
    for (const QQuickItem *item : fixture.item(u"UINavigationBarView"_s)->childItems()) {
        const bool isTitle = item->property("text").isValid();
        QVERIFY(!isTitle || !WindowFixture::rect(item).intersects(back));
    }
}

void ContainersTest::barButtonsLeaveTheTitleTheMiddle_data()
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

void ContainersTest::barButtonsLeaveTheTitleTheMiddle()
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

void ContainersTest::barButtonsArePressed()
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

void ContainersTest::escapeCancelsWhereNothingIsLost()
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

void ContainersTest::tabsAreChosen()
{
    WindowFixture fixture;
    const Shell shell;
    fixture.show(shell.tabs);
    const QSignalSpy chosen(shell.tabs->tabBar(), &UITabBar::itemChosen);
    const QList<QPointer<QQuickItem>> tabs{fixture.items(u"UITabBarItemView"_s).value(0),
                                           fixture.items(u"UITabBarItemView"_s).value(1)};
    fixture.tap(tabs[1]);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(shell.tabs->selectedIndex(), 1);
    QCOMPARE(fixture.focused(), u"Account"_s);
    const auto state = [&](int tab) {
        return QAccessible::queryAccessibleInterface(tabs[tab])->state();
    };
    QVERIFY(!state(0).selected && state(1).selected);
    const QStringList names = fixture.accessible();
    QVERIFY(names.contains(u"PageTab Start"_s) && names.contains(u"PageTab Account"_s));
    QVERIFY(!names.contains(u"Heading Home"_s));
    fixture.tap(tabs[1]);
    QCOMPARE(chosen.size(), 2);

    // By screen reader, then from tab to tab by keyboard.
    QAccessible::queryAccessibleInterface(tabs[0])->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QCOMPARE(shell.tabs->selectedIndex(), 0);
    fixture.key(Qt::Key_Tab);
    QCOMPARE(fixture.focused(), u"Start"_s);
    fixture.key(Qt::Key_Right);
    QCOMPARE(fixture.focused(), u"Account"_s);
    QVERIFY(tabs[1]->property("focusVisible").toBool());
    fixture.key(Qt::Key_Space);
    QCOMPARE(shell.tabs->selectedIndex(), 1);
    QCOMPARE(fixture.focused(), u"Account"_s);
    fixture.key(Qt::Key_Left);
    fixture.key(Qt::Key_Return);
    QCOMPARE(shell.tabs->selectedIndex(), 0);
    QCOMPARE(chosen.size(), 5);
}

WZT_TEST(ContainersTest)
#include "ContainersTest.moc"
