// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/uikit/controls/ControlsPage.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A page whose name is "one two three", with the keyboard there and "clip" to be pasted.
struct TextStage : ControlsPage {
    TextStage()
    {
        QGuiApplication::clipboard()->setText(u"clip"_s);
        name.setText(u"one two three"_s);
        name.becomeFirstResponder();
    }
    [[nodiscard]] QString menu()
    {
        QStringList titles = accessible().filter(u"MenuItem "_s);
        return titles.replaceInStrings(u"MenuItem "_s, QString()).join(u", "_s);
    }
    /// In the middle of "two".
    [[nodiscard]] QPoint word() const
    {
        QRectF mark;
        QMetaObject::invokeMethod(window.activeFocusItem(), "positionToRectangle",
                                  Q_RETURN_ARG(QRectF, mark), Q_ARG(int, 5));
        return window.activeFocusItem()->mapToScene(mark.center()).toPoint();
    }
    void compose(const QString &preedit, const QString &commit) const
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(window.activeFocusItem(), &event);
    }
};

void longPress(TextStage &stage)
{
    Finger finger(stage.window, stage.word());
    QTRY_VERIFY(!stage.menu().isEmpty());
    finger.lift();
}

void doubleTap(TextStage &stage)
{
    stage.tap(stage.word());
    stage.tap(stage.word());
    stage.key(Qt::Key_Menu);
}

void rightClick(TextStage &stage)
{
    QTest::mouseClick(&stage.window, Qt::RightButton, {}, stage.word());
}

void selectAll(TextStage &stage)
{
    stage.key(Qt::Key_A, Qt::ControlModifier);
    stage.key(Qt::Key_F10, Qt::ShiftModifier);
}

/// A way to open the menu, its items, the keys that use it (none: a tap outside), and then the text
/// and the clipboard.
struct Use {
    const char *name;
    void (*open)(TextStage &);
    QString offered;
    QList<Qt::Key> keys;
    QString text;
    QString clipboard;
    bool secret = false;
};

} // namespace

/// Fields and their menu.
class TextEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theKeyboardFollowsTheFirstResponder()
    {
        ControlsPage page;
        EventLog log(page.name);
        page.name.becomeFirstResponder();
        page.type(u"a"_s);
        page.tap(page.named(u"secret"_s));
        page.type(u"b"_s);
        page.key(Qt::Key_Backtab, Qt::ShiftModifier);
        page.named(u"page"_s)->setEnabled(false); // an alert covers the page
        QVERIFY(!page.name.isFirstResponder());
        page.named(u"page"_s)->setEnabled(true);
        page.type(u"c"_s);
        page.name.resignFirstResponder();
        page.type(u"d"_s);
        QCOMPARE(log.take(), u"begin changed end begin end begin changed end"_s);
        QCOMPARE(page.name.text().value() + page.secret.text().value(), u"acb"_s);
    }

    void editsArriveAndShow()
    {
        TextStage stage;
        EventLog log(stage.name);
        stage.key(Qt::Key_Backspace);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.name.text(), std::optional(u"one two thre"_s));
        QCOMPARE(stage.window.rootObject()->property("returns").toInt(), 0);
        const std::optional<QString> nothing;
        stage.name.setText(nothing);
        stage.compose(u"\u00b4"_s, {});
        QCOMPARE(stage.name.text(), nothing);
        stage.compose(u"m"_s, u"\u00e9"_s); // the next is begun at once
        QCOMPARE(stage.name.text(), std::optional(u"\u00e9"_s));
        QCOMPARE(stage.window.activeFocusItem()->property("preeditText").toString(), u"m"_s);
        QCOMPARE(log.take(), u"changed return changed"_s);
    }

    void linesPastedInOneMayBeTakenBack()
    {
        TextStage stage;
        EventLog log(stage.name);
        QGuiApplication::clipboard()->setText(u"1\n2\u20283"_s);
        for (const Qt::Key key : {Qt::Key_V, Qt::Key_Z, Qt::Key_V, Qt::Key_Z, Qt::Key_Y}) {
            stage.key(key, Qt::ControlModifier);
            QCOMPARE(stage.name.text().value(),
                     key == Qt::Key_Z ? u"one two three"_s : u"one two three1 2 3"_s);
        }
        QCOMPARE(log.take(), u"changed changed changed changed changed"_s);
    }

    void theMarkIsInSightWheneverAFieldHasTheKeyboard()
    {
        TextStage stage;
        stage.name.setText(u"many words "_s.repeated(9));
        stage.key(Qt::Key_End);
        const QQuickItem *editor = stage.window.activeFocusItem();
        for (const bool away : {false, true, false}) {
            stage.named(u"page"_s)->setEnabled(!away); // an alert comes and goes
            const QRectF mark = editor->property("cursorRectangle").toRectF();
            QCOMPARE(mark.left() <= editor->width(), !away);
        }
    }

    void theMarkBlinksOnlyWhereItIsSeen()
    {
        TextStage stage;
        const QList<QObject *> parts = stage.window.activeFocusItem()->findChildren<QObject *>();
        const auto isTimer = [](const QObject *part) { return part->property("lit").isValid(); };
        const auto timer = std::find_if(parts.begin(), parts.end(), isTimer);
        QVERIFY(timer != parts.end());
        QVERIFY((*timer)->property("running").toBool());
        stage.window.setVisible(false);
        QVERIFY(!(*timer)->property("running").toBool());
        stage.window.setVisible(true);
        stage.window.setVisibility(QWindow::Minimized);
        QVERIFY(!(*timer)->property("running").toBool());
    }

    void secretsStaySecret()
    {
        TextStage stage;
        stage.secret.becomeFirstResponder();
        stage.type(u"hunter2"_s);
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X}) {
            stage.key(key, Qt::ControlModifier);
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), u"clip"_s);
        QCOMPARE(stage.secret.text(), std::optional(u"hunter2"_s));
        QAccessibleInterface *field = stage.accessible(u"Password"_s);
        QVERIFY(field->state().passwordEdit);
        QString said = field->textInterface() ? field->textInterface()->text(0, 100) : QString();
        for (const auto kind : {QAccessible::Value, QAccessible::Description, QAccessible::Help}) {
            said += field->text(kind);
        }
        QInputMethodQueryEvent asked(Qt::ImQueryAll); // with everything selected
        QCoreApplication::sendEvent(stage.window.activeFocusItem(), &asked);
        for (const auto text : {Qt::ImSurroundingText, Qt::ImCurrentSelection,
                                Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor}) {
            said += asked.value(text).toString();
        }
        QCOMPARE(asked.value(Qt::ImSurroundingText).toString().size(), 7);
        const Qt::InputMethodHints hints(asked.value(Qt::ImHints).toInt());
        QVERIFY(hints.testFlags(Qt::ImhHiddenText | Qt::ImhSensitiveData));
        QVERIFY2(!said.contains(u'h'), qPrintable(said));
    }

    void theMenuIsUsed_data()
    {
        const QString text = u"one two three"_s;
        const QString clip = u"clip"_s;
        const QString all = u"Cut, Copy, Paste, Select All"_s;
        const QList<Qt::Key> cut{Qt::Key_Down, Qt::Key_Return};
        const QList<Qt::Key> second{Qt::Key_Up, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Space};
        const QList<Qt::Key> leave{Qt::Key_Down, Qt::Key_Escape, Qt::Key_End, Qt::Key_Y};
        addCases<Use>({
            {"a word, copied", longPress, all, second, text, u"two"_s},
            {"a word, cut", doubleTap, all, cut, u"one  three"_s, u"two"_s},
            {"pasted", rightClick, u"Paste, Select All"_s, cut, u"one tclipwo three"_s, clip},
            {"all, cut", selectAll, u"Cut, Copy, Paste"_s, cut, u""_s, text},
            {"nothing to paste", selectAll, u"Cut, Copy"_s, {}, text, {}},
            {"a secret", selectAll, u"Paste"_s, leave, u"one two threey"_s, clip, true},
        });
    }

    void theMenuIsUsed()
    {
        const Use &use = currentCase<Use>();
        TextStage stage;
        EventLog button(stage.button);
        if (use.clipboard.isEmpty()) {
            QGuiApplication::clipboard()->clear();
        }
        stage.name.setInputTraits({.secureTextEntry = use.secret});
        use.open(stage);
        QCOMPARE(stage.menu(), use.offered);
        stage.keys(use.keys);
        if (use.keys.isEmpty()) {
            stage.tap(stage.named(u"button"_s));
        }
        QCOMPARE(stage.menu(), QString());
        QCOMPARE(stage.name.text(), std::optional(use.text));
        QCOMPARE(QGuiApplication::clipboard()->text(), use.clipboard);
        QCOMPARE(button.take(), QString());
        QVERIFY2(stage.name.isFirstResponder(), "the keyboard is lost");
    }

    void theMenuStaysInTheWindow()
    {
        TextStage stage;
        stage.window.resize(320, 568);
        stage.application.traits().setOverride(DesktopAppearance{.textScale = 2});
        const QRect window(stage.window.mapToGlobal(QPoint()), QSize(320, 568));
        for (const QPointF place : {QPointF(), {120, 0}, {0, 532}, {120, 532}, {60, 280}}) {
            stage.named(u"name"_s)->setPosition(place);
            selectAll(stage);
            stage.grab();
            const QRect menu = stage.accessible(u"Edit"_s)->rect();
            QVERIFY(window.contains(menu) && menu.height() >= 3 * 44);
            stage.press(u"Copy"_s);
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), stage.name.text());
    }
};

WZT_TEST(TextEditingTest)
#include "TextEditingTest.moc"
