// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/TableKeyboard.h"
#include "screens/account/WZTUserViewController.h"
#include "tests/screens/ScreenStage.h"
#include "views/PressedColor.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;

/// The Account tab.
struct AccountStage : ScreenStage {
    explicit AccountStage(const Options &options = {.size = {390, 844}, .appearance = {}})
        : ScreenStage("Account", options)
    {
    }

    [[nodiscard]] UITableView *table() { return delegate().userVC()->tableView(); }
    template <typename Cell>
    [[nodiscard]] Cell &cell(int entry)
    {
        const auto shown = table()->entries()->index(entry).data(TableEntries::CellRole);
        return *qobject_cast<Cell *>(shown.value<UITableViewCell *>());
    }
    [[nodiscard]] WZTAccountTableViewCell &card() { return cell<WZTAccountTableViewCell>(4); }
    [[nodiscard]] WZTGlossyButton &logout() { return *cell<WZTButtonTableViewCell>(7).button(); }
    [[nodiscard]] bool isPressed()
    {
        return logout().backgroundColor() == pressedColor(UIColor::redColor());
    }
    [[nodiscard]] QQuickItem *list()
    {
        return drawing(table())->findChild<QQuickItem *>(u"list"_s);
    }
    [[nodiscard]] double scrolled()
    {
        const auto value = [&](const char *name) { return list()->property(name).toDouble(); };
        return value("contentY") - value("originY") + value("verticalOvershoot");
    }
    [[nodiscard]] bool isRefreshing() { return table()->refreshControl()->isRefreshing(); }
};

} // namespace

/// The Account tab as it is drawn and touched.
class AccountDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void relations()
    {
        const WZTUser jo(1, u"jo@wzt.example"_s, u"Jo"_s);
        const WZTUser longer(1, QString(90, u'x') + u"@wzt.example"_s,
                             u"Maximiliane "_s.repeated(8));
        for (const auto &[width, textScale, user] :
             {std::tuple(390, 1.0, jo), {768, 1.0, longer}, {320, 2.0, longer}}) {
            AccountStage stage({{width, 844}, {.textScale = textScale}, user});
            WZTAccountTableViewCell &cell = stage.card();
            const QRectF row = stage.rect(&cell);
            const QRectF card = stage.rect(cell.cardBackgroundView());
            const QRectF heading = stage.rect(cell.headerLabel());
            const QRectF button = stage.rect(cell.editButton());
            const QRectF since = stage.rect(cell.userSinceLabel());
            QCOMPARE(card, row.adjusted(16, 0, -16, 0));
            QCOMPARE(heading.topLeft(), card.topLeft() + QPointF(14, 14));
            QVERIFY(heading.right() <= button.left() - 10 + 1e-6);
            QCOMPARE(button.right(), card.right() - 14);
            QVERIFY(isNear(button.center().y(), heading.center().y()));
            const QRectF divider(0, heading.bottom() + 14, width, 1);
            QCOMPARE(stage.rect(cell.dividerOneView()), divider);

            const std::tuple<UILabel *, UIView *, UILabel *, double> values[] = {
                {cell.userNameLabel(), cell.dividerTwoView(), cell.userNameTitleLabel(), 10},
                {cell.emailLabel(), cell.dividerThreeView(), cell.emailTitleLabel(), 14},
            };
            double above = divider.bottom();
            for (const auto &[label, line, caption, space] : values) {
                // As wide as its letters, or as the room.
                const QRectF value = stage.rect(label);
                QCOMPARE(value.topLeft(), QPointF(card.left() + 14, above + space));
                QCOMPARE(value.width(),
                         qMin(stage.drawing(label)->implicitWidth(), card.width() - 28));
                QCOMPARE(stage.rect(line),
                         QRectF(value.left(), value.bottom() + 2, value.width(), 1));
                QCOMPARE(stage.rect(caption).topLeft(), value.bottomLeft() + QPointF(0, 2 + 1 + 2));
                above = stage.rect(caption).bottom();
            }
            QCOMPARE(since.top(), above + 14);
            QVERIFY(isNear(since.center().x(), card.center().x()));
            QCOMPARE(card.bottom(), since.bottom() + 14);
        }
    }

    void smallCells()
    {
        AccountStage stage(AccountStage::Options{});
        auto &header = stage.cell<WZTHeaderTableViewCell>(1);
        const QRectF logo = stage.rect(header.logoImageView());
        const QRectF row = stage.rect(&header);
        QVERIFY(std::abs(logo.height() - 49.046) < 0.01);
        QCOMPARE(logo, QRectF(129, row.top(), 62, row.height() - 10));
        const QRectF button = stage.rect(&stage.cell<WZTButtonTableViewCell>(7));
        QCOMPARE(stage.rect(&stage.logout()), button.adjusted(20, 0, -20, 0));
        // 14 below the header's section, and the platform's space above the next.
        QVERIFY(std::abs(stage.rect(&stage.card()).top() - row.bottom() - 14 - 18) < 0.01);

        stage.delegate().tabController()->setSelectedIndex(0);
        stage.settle();
        QTRY_VERIFY(stage.named(u"heart"_s));
        const QRectF card = TestWindow::rect(stage.named(u"heart"_s)->parentItem());
        QCOMPARE(TestWindow::rect(stage.named(u"heart"_s)), QRectF(145, card.top(), 30, 30));
        QCOMPARE(TestWindow::rect(stage.named(u"thanks"_s)), card.adjusted(10, 34, -10, -4));
        const QPoint heart = stage.centre(stage.named(u"heart"_s));
        QCOMPARE(stage.grab().pixelColor(heart), QColor(Qt::red));
    }

    void theCardCutsTheFirstDivider()
    {
        AccountStage stage({{390, 844}, {.style = UIUserInterfaceStyle::Light}});
        const QImage image = stage.grab();
        const QRect divider = stage.rect(stage.card().dividerOneView()).toAlignedRect();
        const auto color = [&](int x) { return image.pixelColor(x, divider.top()); };
        QCOMPARE(color(8), QColor(242, 242, 247));
        QVERIFY(color(18) != QColor(Qt::white));
        QCOMPARE(color(18), color(371));
        QCOMPARE(color(382), QColor(242, 242, 247));
    }

    void aFingerOnTheButton()
    {
        AccountStage stage;
        const QPoint at = stage.rect(&stage.logout()).center().toPoint();
        stage.drag(at, at + QPoint(0, 70));
        QVERIFY(!stage.isPressed() && !stage.isRefreshing());
        QTRY_COMPARE(stage.scrolled(), 0);

        Finger pressing(stage.view(), at);
        QTRY_VERIFY(stage.isPressed());
        const QColor drawn = stage.grab().pixelColor(at - QPoint(150, 0));
        QCOMPARE(drawn, pressedColor(UIColor::redColor()).toQColor(false));
        pressing.move(at + QPoint(0, 150)); // the touch stays the button's
        QTRY_VERIFY(!stage.isPressed());
        QCOMPARE(stage.scrolled(), 0);
        pressing.move(at + QPoint(0, 5));
        QTRY_VERIFY(stage.isPressed());
        QVERIFY(stage.delegate().currentUser());
        pressing.lift();
        QTRY_VERIFY(stage.top<WZTLoginViewController>());
        QCOMPARE(stage.host().taps, 1);
    }

    void pullsToRefresh()
    {
        AccountStage stage;
        stage.service().stage("/user.php", Fault::delay(std::chrono::milliseconds(600)));
        Finger finger(stage.view(), {195, 600});
        finger.move({195, 840});
        QVERIFY(stage.scrolled() < -80);
        QVERIFY2(!stage.isRefreshing(), "before the finger is lifted");
        finger.lift();
        QVERIFY(stage.isRefreshing());
        QTRY_COMPARE(stage.scrolled(), -60);
        QVERIFY(stage.accessible(u"Loading"_s));
        QTRY_VERIFY(!stage.isRefreshing());
        QTRY_COMPARE(stage.scrolled(), 0);
        QVERIFY(!stage.accessible(u"Loading"_s));
    }

    void refreshesByKeyWhereItIsSeen()
    {
        AccountStage stage({.size = {320, 400}});
        stage.service().stage("/user.php", Fault::silence(), -1);
        stage.card().editButton()->activate();
        stage.settle();
        stage.key(Qt::Key_F5);
        QVERIFY2(!stage.isRefreshing(), "behind an alert");
        stage.top<UIAlertController>()->triggerCancel();
        stage.settle();
        stage.delegate().tabController()->setSelectedIndex(0);
        stage.key(Qt::Key_F5);
        QVERIFY2(!stage.isRefreshing(), "in another tab");
        stage.delegate().tabController()->setSelectedIndex(1);
        stage.key(Qt::Key_F5);
        QVERIFY(stage.isRefreshing());
        QTRY_COMPARE(stage.scrolled(), -60);
        stage.table()->refreshControl()->endRefreshing();
        QTRY_COMPARE(stage.scrolled(), 0);

        // The keyboard focus survives the reload.
        stage.service().clear();
        stage.keys({Qt::Key_Tab, Qt::Key_F5});
        QTRY_VERIFY(!stage.isRefreshing());
        QTRY_COMPARE(stage.view().activeFocusItem(), stage.drawing(stage.card().editButton()));
    }

    // While the table is still on its way to the spinner.
    void aRefreshThatEndsAtOnceLeavesTheTableInPlace()
    {
        for (const auto &[textScale, pulls] :
             {std::pair(1, true), {2, true}, {1, false}, {2, false}}) {
            AccountStage stage({textScale > 1 ? QSize(320, 568) : QSize(390, 844),
                                {.textScale = static_cast<double>(textScale)}});
            stage.service().stage("/user.php", Fault::close());
            if (pulls) {
                stage.drag({30, 60}, {30, 380});
            } else {
                stage.key(Qt::Key_F5);
            }
            QTRY_COMPARE(stage.service().requests().size(), 1);
            QTRY_VERIFY(!stage.isRefreshing() && !stage.list()->property("moving").toBool());
            QTRY_COMPARE(stage.scrolled(), 0);
            QTRY_COMPARE(stage.list()->property("topMargin").toDouble(), 0);
        }
    }

    /// The current row has no label: screen readers are told of its first control, after an alert
    /// as before it.
    void theCurrentControlOutlivesAnAlert()
    {
        AccountStage stage;
        QQuickItem *drawing = stage.drawing(stage.table());
        const auto *keyboard = drawing->findChild<TableKeyboard *>();
        for (int i = 0; i < 5 && !keyboard->hasActiveFocus(); ++i) {
            stage.key(Qt::Key_Tab);
        }
        stage.key(Qt::Key_End);
        const QQuickItem *control = keyboard->current();
        QCOMPARE(control, stage.drawing(&stage.logout()));
        drawing->setEnabled(false);
        QVERIFY(keyboard->current() != control);
        drawing->setEnabled(true);
        QCOMPARE(keyboard->current(), control);
    }
};

WZT_TEST(AccountDrawingTest)
#include "AccountDrawingTest.moc"
