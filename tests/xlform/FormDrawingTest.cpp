// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/WindowStage.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "tests/xlform/SampleForm.h"

#include <QAccessible>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(UIKitPlugin)
Q_IMPORT_QML_PLUGIN(XLFormPlugin)

using namespace Qt::StringLiterals;

namespace {

/// A form that is presented in a window.
struct Stage : WindowStage {
    explicit Stage(const QSize &size = {320, 568}, const DesktopAppearance &appearance = {},
                   bool slidesIn = false)
        : WindowStage(appearance)
    {
        const auto root = make<UITableViewController>(UITableViewStyle::Grouped);
        show(root, {}, size);
        root->presentViewController(make<UINavigationController>(form), slidesIn);
        settle();
        grab();
    }

    [[nodiscard]] QQuickItem *list() { return items(u"QQuickListView"_s).last(); }
    [[nodiscard]] double scrolled() { return list()->property("contentY").toDouble(); }
    /// The insertion mark in the window, once everything stands.
    [[nodiscard]] QRectF mark()
    {
        QTest::qWait(0);
        grab();
        const QQuickItem *editor = view().activeFocusItem();
        return editor->mapRectToScene(editor->property("cursorRectangle").toRectF());
    }

    std::shared_ptr<SampleForm> form = make<SampleForm>();
    UITextField *name = form->nameField();
    UITextView *notes = form->notesView();
};

using Change = std::tuple<const char *, void (*)(Stage &)>;

} // namespace

/// A form as it is drawn, touched and typed into.
class FormDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsHoldTheirParts()
    {
        const QString longer = u"What we may call it"_s;
        for (const auto &[width, textScale, title] : {std::tuple(320, 1.0, u"Name"_s),
                                                      {320, 2.0, u"Name"_s},
                                                      {320, 1.0, longer},
                                                      {390, 2.0, longer}}) {
            Stage stage({width, 844}, {.textScale = textScale});
            stage.form->cellOf(*stage.form->name)->textLabel()->setText(title);
            stage.name->edit(u"A name that is too long for its field, by far"_s);
            stage.grab();
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
    }

    void typedTextStaysInSight()
    {
        Stage stage({320, 568}, {.textScale = 1.5});
        stage.showKeyboard(260);
        const QRectF free(0, 44, 320, 568 - 44 - 260);
        QVERIFY(free.contains(stage.mark()));
        const double before = stage.rect(stage.notes).height();
        stage.key(Qt::Key_Return); // on to the notes
        for (int i = 0; i < 30; ++i) {
            stage.type(u"Line\r"_s);
            QVERIFY2(free.contains(stage.mark()), qPrintable(QString::number(i)));
        }
        QVERIFY(stage.rect(stage.notes).height() > 3 * before);
        for (int i = 0; i < 30; ++i) {
            stage.key(Qt::Key_Up);
        }
        QVERIFY(free.contains(stage.mark()));

        stage.notes->edit({}); // all is gone, and so is the keyboard
        stage.showKeyboard(0);
        QTRY_COMPARE(stage.scrolled(), 0.0);
    }

    void noWordIsLost_data()
    {
        addCases<Change>({
            {"scrolled away", [](Stage &stage) { stage.list()->setProperty("contentY", 700); }},
            {"turned", [](Stage &stage) { stage.view().resize(844, 390); }},
            {"larger text",
             [](Stage &stage) {
                 stage.application.traits().setOverride(DesktopAppearance{.textScale = 2});
             }},
            {"covered by an alert",
             [](Stage &stage) {
                 stage.form->presentViewController(make<UIAlertController>(u"A"_s, u"B"_s), true);
                 stage.settle();
                 stage.form->dismissViewControllerAnimated(true);
                 stage.settle();
             }},
        });
    }

    void noWordIsLost()
    {
        const auto &[name, change] = currentCase<Change>();
        Stage stage;
        const QString notes = u"Notes\n"_s.repeated(40);
        stage.notes->edit(notes);
        stage.type(u"one "_s);
        change(stage);
        stage.grab();
        stage.type(u"two"_s);
        QCOMPARE(stage.form->name->value(), u"one two"_s);
        QVERIFY(QRectF(QPointF(), stage.view().size()).contains(stage.mark()));
        QCOMPARE(stage.form->notes->value(), notes);
        QCOMPARE(stage.view().activeFocusItem()->property("text"), u"one two"_s);
    }

    void keys()
    {
        Stage stage({320, 568}, {}, true);
        QCOMPARE(stage.focused(), u"Name"_s);
        stage.key(Qt::Key_Down); // not to another row
        stage.hold(Qt::Key_Escape);
        QCOMPARE(stage.form->cancelled, 1);
        stage.hold(Qt::Key_Return); // writes no line into the notes
        stage.type(u"a"_s);
        QTest::keyPress(&stage.view(), Qt::Key_C);
        QTest::keyPress(&stage.view(), Qt::Key_Return);
        QTest::keyRelease(&stage.view(), Qt::Key_C); // late, as of one who types fast
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(&stage.view(), &held);
        stage.keys({Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_End, Qt::Key_Left});
        stage.type(u"b"_s);
        QCOMPARE(stage.form->notes->value(), u"abc\n\n"_s);
        stage.key(Qt::Key_Escape);
        QCOMPARE(stage.form->cancelled, 1);
    }

    void touches()
    {
        Stage stage;
        stage.notes->edit(u"Some words on a line. "_s.repeated(60));
        stage.grab();
        stage.tap(stage.form->cellOf(*stage.form->notes)->textLabel());
        QVERIFY(stage.notes->isFirstResponder());
        QTRY_VERIFY(stage.scrolled() == 0);
        stage.tap(stage.name);
        QVERIFY(stage.name->isFirstResponder());

        // A moving finger scrolls the form and leaves the keyboard where it was.
        for (const int way : {-1, 1, -1}) {
            stage.drag({160, 300 - way * 100}, {160, 300 + way * 100});
            QTRY_VERIFY(!stage.list()->property("moving").toBool());
        }
        QVERIFY(stage.scrolled() > 100 && stage.name->isFirstResponder());

        // Where it taps, the text is edited, and the form stands still.
        const double before = stage.scrolled();
        stage.tap(QPoint(160, 300));
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
        QVERIFY(stage.accessible(u"Notes"_s)->state().multiLine);
        const QPointF word = stage.rect(stage.notes).topLeft() + QPointF(30, 10);
        Finger finger(stage.view(), word.toPoint());
        QTRY_VERIFY(stage.accessible().contains(u"MenuItem Cut"_s));
        finger.lift();
        stage.tap(u"Cut"_s);
        QCOMPARE(stage.form->notes->value(), u" and more"_s);
    }
};

WZT_TEST(FormDrawingTest)
#include "FormDrawingTest.moc"
