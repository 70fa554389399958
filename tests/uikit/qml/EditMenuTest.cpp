// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/ControlsPage.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QStyleHints>

using namespace Qt::StringLiterals;

namespace {

/// A page whose name is "one two three", with the keyboard there and "clip" to be pasted.
struct Stage : ControlsPage {
    Stage()
    {
        QGuiApplication::clipboard()->setText(u"clip"_s);
        name.setText(u"one two three"_s);
        name.becomeFirstResponder();
    }
    [[nodiscard]] QString menu()
    {
        QStringList titles = WindowDriver::accessible(fixture.window).filter(u"MenuItem "_s);
        return titles.replaceInStrings(u"MenuItem "_s, QString()).join(u", "_s);
    }
    /// In the middle of that word.
    [[nodiscard]] QPoint word(const QString &word)
    {
        QQuickItem *input = fixture.window.activeFocusItem();
        QRectF mark;
        QMetaObject::invokeMethod(input, "positionToRectangle", Q_RETURN_ARG(QRectF, mark),
                                  Q_ARG(int, int(name.text()->indexOf(word)) + 1));
        return input->mapToScene(mark.center()).toPoint();
    }
    void press(const QPoint &at, bool longer)
    {
        WindowDriver::Finger finger(fixture.window, at);
        if (longer)
            QTRY_VERIFY(!menu().isEmpty());
        finger.lift();
    }
    void tapOn(const QString &title)
    {
        const auto *item = WindowDriver::accessible(fixture.window, title);
        fixture.tap(fixture.window.mapFromGlobal(item->rect().center()));
    }
};

using Offer = std::tuple<const char *, bool, QList<Qt::Key>, QString, QString>;
using Use = std::tuple<const char *, void (*)(Stage &), QString, QString>;

void key(Stage &stage, std::initializer_list<Qt::Key> keys)
{
    for (const Qt::Key key : keys)
        stage.key(key);
}

} // namespace

/// The menu of what edits text.
class EditMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersWhatCanBeDone_data()
    {
        addCases<Offer>({
            {"nothing selected", false, {}, u"clip"_s, u"Paste, Select All"_s},
            {"all selected", false, {Qt::Key_A}, u"clip"_s, u"Cut, Copy, Paste"_s},
            {"nothing to paste", false, {Qt::Key_A}, {}, u"Cut, Copy"_s},
            {"a secret", true, {Qt::Key_A}, u"clip"_s, u"Paste"_s},
        });
    }

    void offersWhatCanBeDone()
    {
        const auto &[name, isSecret, control, clipboard, offered] = currentCase<Offer>();
        Stage stage;
        if (clipboard.isEmpty())
            QGuiApplication::clipboard()->clear();
        if (isSecret) {
            stage.secret.setText(u"hunter2"_s);
            stage.secret.becomeFirstResponder();
        }
        for (const Qt::Key each : control)
            stage.key(each, Qt::ControlModifier);
        stage.key(Qt::Key_Menu);
        QCOMPARE(stage.menu(), offered);
    }

    void isUsed_data()
    {
        addCases<Use>({
            {"long press, copy by finger",
             [](Stage &stage) {
                 stage.press(stage.word(u"two"_s), true);
                 stage.tapOn(u"Copy"_s);
             },
             u"one two three"_s, u"two"_s},
            {"double tap, cut by key",
             [](Stage &stage) {
                 for (int tap = 0; tap < 2; ++tap)
                     stage.press(stage.word(u"two"_s), false);
                 key(stage, {Qt::Key_Menu, Qt::Key_Down, Qt::Key_Return});
             },
             u"one  three"_s, u"two"_s},
            {"right click, paste at the pointer",
             [](Stage &stage) {
                 QTest::mouseClick(&stage.fixture.window, Qt::RightButton, {},
                                   stage.word(u"two"_s));
                 key(stage, {Qt::Key_Down, Qt::Key_Space});
             },
             u"one tclipwo three"_s, u"clip"_s},
            {"screen reader, cut",
             [](Stage &stage) {
                 stage.key(Qt::Key_A, Qt::ControlModifier);
                 stage.key(Qt::Key_F10, Qt::ShiftModifier);
                 WindowDriver::accessible(stage.fixture.window, u"Cut"_s)
                     ->actionInterface()
                     ->doAction(QAccessibleActionInterface::pressAction());
             },
             u""_s, u"one two three"_s},
            {"round the menu and out",
             [](Stage &stage) {
                 key(stage, {Qt::Key_Menu, Qt::Key_Up, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Y});
             },
             u"one two threey"_s, u"clip"_s},
            {"Escape",
             [](Stage &stage) {
                 key(stage, {Qt::Key_Menu, Qt::Key_Down, Qt::Key_Escape});
             },
             u"one two three"_s, u"clip"_s},
            {"a tap outside",
             [](Stage &stage) {
                 stage.key(Qt::Key_Menu);
                 stage.fixture.tap(stage.at("button"));
             },
             u"one two three"_s, u"clip"_s},
        });
    }

    void isUsed()
    {
        const auto &[name, use, text, clipboard] = currentCase<Use>();
        Stage stage;
        EventLog button(stage.button);
        use(stage);
        QCOMPARE(stage.name.text(), std::optional(text));
        QCOMPARE(QGuiApplication::clipboard()->text(), clipboard);
        QCOMPARE(stage.menu(), QString());
        QCOMPARE(button.take(), QString());
        QVERIFY2(stage.name.isFirstResponder(), "the keyboard is lost");
    }

    void staysInTheWindow()
    {
        Stage stage;
        stage.fixture.window.resize(320, 568);
        stage.fixture.application.traits().setOverride(UIAppearance{.textScale = 2});
        for (const QPointF place : {QPointF(), {120, 0}, {0, 532}, {120, 532}, {60, 280}}) {
            QQuickItem *field = stage.item("name");
            field->setPosition(place);
            stage.key(Qt::Key_A, Qt::ControlModifier);
            stage.key(Qt::Key_Menu);
            stage.fixture.grab();
            const QRect menu = WindowDriver::accessible(stage.fixture.window, u"Edit"_s)->rect();
            QVERIFY(
                QRect(stage.fixture.window.mapToGlobal(QPoint()), QSize(320, 568)).contains(menu));
            QVERIFY(menu.height() >= 3 * 44);
            stage.key(Qt::Key_Escape);
        }
    }
};

WZT_TEST(EditMenuTest)
#include "EditMenuTest.moc"
