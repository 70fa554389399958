// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UINavigationController.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/support/WindowDriver.h"
#include "tests/uikit/qml/WindowFixture.h"
#include "tests/xlform/SampleForm.h"

#include <QAccessible>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(UIKitPlugin)
Q_IMPORT_QML_PLUGIN(XLFormPlugin)

using namespace Qt::StringLiterals;

namespace {

// A form presented in a real window.
struct Stage {
    explicit Stage(const QSize &size = {320, 568}, const DesktopAppearance &appearance = {},
                   bool slidesIn = false)
        : fixture(appearance)
    {
        const auto root = make<UITableViewController>(UITableViewStyle::Grouped);
        fixture.show(root, {}, size);
        root->presentViewController(make<UINavigationController>(form), slidesIn);
        fixture.settle();
        view().grabWindow();
    }

    [[nodiscard]] QQuickView &view() { return fixture.host->view(); }
    [[nodiscard]] QRectF rect(const QObject *control)
    {
        return WindowDriver::rect(WindowDriver::drawing(view(), control));
    }
    void tap(const QObject *control) { fixture.tap(WindowDriver::drawing(view(), control)); }
    void type(const QString &text) { WindowDriver::type(view(), text); }
    void keys(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys) {
            fixture.key(key);
        }
    }
    [[nodiscard]] QQuickItem *list() { return fixture.items(u"QQuickListView"_s).last(); }
    [[nodiscard]] double scrolled() { return list()->property("contentY").toDouble(); }
    /// The insertion mark in the window, once everything stands.
    [[nodiscard]] QRectF mark()
    {
        QTest::qWait(0);
        view().grabWindow();
        const QQuickItem *editor = view().activeFocusItem();
        return editor->mapRectToScene(editor->property("cursorRectangle").toRectF());
    }
    void setKeyboardHeight(double height) { WindowDriver::showKeyboard(view(), height); }

    std::shared_ptr<SampleForm> form = make<SampleForm>();
    UITextField *name = form->nameField();
    UITextView *notes = form->notesView();
    WindowFixture fixture;
};

using Place = std::tuple<const char *, int, double, QString>;
using Happening = std::tuple<const char *, void (*)(Stage &)>;

} // namespace

/// A form as it is drawn, touched and typed into.
class FormDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsHoldTheirParts_data()
    {
        const QString title = u"What we may call it"_s;
        addCases<Place>({{"smallest", 320, 1, u"Name"_s},
                         {"smallest, large text", 320, 2, u"Name"_s},
                         {"smallest, long title", 320, 1, title},
                         {"phone, long title, large text", 390, 2, title}});
    }

    void rowsHoldTheirParts()
    {
        const auto &[name, width, textScale, title] = currentCase<Place>();
        Stage stage({width, 844}, {.textScale = textScale});
        stage.form->cellOf(*stage.form->name)->textLabel()->setText(title);
        stage.name->edit(u"A name that is too long for its field, by far"_s);
        stage.view().grabWindow();
        for (XLFormRowDescriptor *row : {stage.form->name.get(), stage.form->notes.get()}) {
            XLFormCell *cell = stage.form->cellOf(*row).get();
            const QRectF bounds = stage.rect(cell);
            const QRectF label = stage.rect(cell->textLabel());
            const QRectF editor = stage.rect(cell->editor());
            QVERIFY(bounds.height() >= 44);
            const QRectF inside(16, bounds.top(), width - 2 * 16, bounds.height());
            QVERIFY(inside.contains(label) && inside.contains(editor));
            QVERIFY2(!label.intersects(editor), "the title and the text overlap");
            QCOMPARE(editor.right(), inside.right());
            QVERIFY(editor.width() > width / 3.0);
        }
        QVERIFY(stage.rect(stage.notes).height() >= 3 * stage.mark().height());
    }

    void whatIsTypedStaysInSight()
    {
        Stage stage({320, 568}, {.textScale = 1.5});
        stage.setKeyboardHeight(260);
        const QRectF free(0, 44, 320, 568 - 44 - 260);
        QVERIFY(free.contains(stage.mark()));
        const double before = stage.rect(stage.notes).height();
        stage.fixture.key(Qt::Key_Return); // on to the notes
        for (int i = 0; i < 30; ++i) {
            stage.type(u"Line\r"_s);
            QVERIFY2(free.contains(stage.mark()), qPrintable(QString::number(i)));
        }
        QVERIFY(stage.rect(stage.notes).height() > 3 * before);
        for (int i = 0; i < 30; ++i) {
            stage.fixture.key(Qt::Key_Up);
        }
        QVERIFY(free.contains(stage.mark()));

        stage.notes->edit({}); // all is gone, and so is the keyboard
        stage.setKeyboardHeight(0);
        QTRY_COMPARE(stage.scrolled(), 0.0);
    }

    void noWordIsLost_data()
    {
        addCases<Happening>({
            {"scrolled away", [](Stage &stage) { stage.list()->setProperty("contentY", 700); }},
            {"turned", [](Stage &stage) { stage.view().resize(844, 390); }},
            {"larger text",
             [](Stage &stage) {
                 stage.fixture.application.traits().setOverride(DesktopAppearance{.textScale = 2});
             }},
            {"covered by an alert",
             [](Stage &stage) {
                 stage.form->presentViewController(make<UIAlertController>(u"A"_s, u"B"_s), true);
                 stage.fixture.settle();
                 stage.form->dismissViewControllerAnimated(true);
                 stage.fixture.settle();
             }},
        });
    }

    void noWordIsLost()
    {
        const auto &[name, happening] = currentCase<Happening>();
        Stage stage;
        const QString notes = u"Notes\n"_s.repeated(40);
        stage.notes->edit(notes);
        stage.type(u"one "_s);
        happening(stage);
        stage.view().grabWindow();
        stage.type(u"two"_s);
        QCOMPARE(stage.form->name->value(), u"one two"_s);
        QVERIFY(QRectF(QPointF(), stage.view().size()).contains(stage.mark()));
        QCOMPARE(stage.form->notes->value(), notes);
        QCOMPARE(stage.view().activeFocusItem()->property("text"), u"one two"_s);
    }

    void keys()
    {
        Stage stage({320, 568}, {}, true);
        QCOMPARE(stage.fixture.focused(), u"Name"_s);
        stage.keys({Qt::Key_Down, Qt::Key_Escape}); // not to another row
        QCOMPARE(stage.form->cancelled, 1);
        stage.fixture.key(Qt::Key_Return);
        stage.type(u"a"_s);
        QTest::keyPress(&stage.view(), Qt::Key_C);
        QTest::keyPress(&stage.view(), Qt::Key_Return);
        QTest::keyRelease(&stage.view(), Qt::Key_C); // late, as of one who types fast
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(&stage.view(), &held);
        stage.keys({Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_End, Qt::Key_Left});
        stage.type(u"b"_s);
        QCOMPARE(stage.form->notes->value(), u"abc\n\n"_s);
        stage.fixture.key(Qt::Key_Escape);
        QCOMPARE(stage.form->cancelled, 1);
    }

    void touches()
    {
        Stage stage;
        stage.notes->edit(u"Some words on a line. "_s.repeated(60));
        stage.view().grabWindow();
        stage.tap(stage.form->cellOf(*stage.form->notes)->textLabel());
        QVERIFY(stage.notes->isFirstResponder());
        QTRY_VERIFY(stage.scrolled() == 0);
        stage.tap(stage.name);
        QVERIFY(stage.name->isFirstResponder());

        // A finger that moves scrolls the form; what is typed goes on where it was.
        for (const int way : {-1, 1, -1}) {
            WindowDriver::Finger finger(stage.view(), {160, 300 - way * 100});
            finger.move({160, 300 + way * 100});
            finger.lift();
            QTRY_VERIFY(!stage.list()->property("moving").toBool());
        }
        QVERIFY(stage.scrolled() > 100 && stage.name->isFirstResponder());

        // Where it taps, the text is edited, and the form stands still.
        const double before = stage.scrolled();
        WindowDriver::tap(stage.view(), {160, 300});
        QVERIFY(stage.notes->isFirstResponder());
        QVERIFY(QRectF(0, 270, 320, 60).contains(stage.mark()));
        stage.type(u"\r\r"_s);
        QVERIFY(QRectF(0, 270 + 2 * 20, 320, 60).contains(stage.mark()));
        QCOMPARE(stage.scrolled(), before);
    }

    void aLongPressSelectsAWordAndOpensItsMenu()
    {
        Stage stage;
        stage.notes->edit(u"wwwwwwww and more"_s);
        QVERIFY(WindowDriver::accessible(stage.view(), u"Notes"_s)->state().multiLine);
        const QPointF word = stage.rect(stage.notes).topLeft() + QPointF(30, 10);
        WindowDriver::Finger finger(stage.view(), word.toPoint());
        QTRY_VERIFY(stage.fixture.accessible().contains(u"MenuItem Cut"_s));
        finger.lift();
        const QPoint cut = WindowDriver::accessible(stage.view(), u"Cut"_s)->rect().center();
        WindowDriver::tap(stage.view(), stage.view().mapFromGlobal(cut));
        QCOMPARE(stage.form->notes->value(), u" and more"_s);
    }
};

WZT_TEST(FormDrawingTest)
#include "FormDrawingTest.moc"
