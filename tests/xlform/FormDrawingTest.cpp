// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UINavigationController.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"
#include "tests/support/WindowDriver.h"
#include "tests/uikit/qml/WindowFixture.h"
#include "tests/xlform/SampleForm.h"

#include <QAccessible>
#include <QPointingDevice>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(UIKitPlugin)
Q_IMPORT_QML_PLUGIN(XLFormPlugin)

using namespace Qt::StringLiterals;

namespace {

// A form presented in a real window.
struct Stage {
    explicit Stage(const QSize &size = {320, 568}, const UIAppearance &appearance = {},
                   bool slidesIn = false)
        : fixture(appearance)
    {
        const auto root = make<UITableViewController>(UITableViewStyle::Grouped);
        fixture.show(root, {}, size);
        root->presentViewController(make<UINavigationController>(form), slidesIn);
        fixture.settle();
        view().grabWindow();
    }

    [[nodiscard]] QQuickItem *drawing(const QObject *control)
    {
        return WindowDriver::drawing(view(), control);
    }
    [[nodiscard]] QRectF rect(const QObject *control)
    {
        return WindowDriver::rect(drawing(control));
    }
    [[nodiscard]] QQuickItem *list() { return fixture.items(u"QQuickListView"_s).last(); }
    [[nodiscard]] QQuickView &view() { return fixture.host->view(); }
    /// The insertion mark in the window, once everything stands.
    [[nodiscard]] QRectF mark()
    {
        QTest::qWait(0);
        view().grabWindow();
        const QQuickItem *editor = view().activeFocusItem();
        return editor->mapRectToScene(editor->property("cursorRectangle").toRectF());
    }
    void setKeyboardHeight(double height)
    {
        WindowDriver::showKeyboard(view(), height);
    }
    void type(const QString &text) { WindowDriver::type(view(), text); }

    std::shared_ptr<SampleForm> form = make<SampleForm>();
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
        stage.form->nameField()->edit(u"A name that is too long for its field, by far"_s);
        stage.view().grabWindow();
        for (XLFormRowDescriptor *row : {stage.form->name.get(), stage.form->notes.get()}) {
            XLFormCell *cell = stage.form->cellOf(*row).get();
            const QRectF bounds = stage.rect(cell);
            const QRectF label = stage.rect(cell->textLabel());
            const QRectF editor = stage.rect(cell->editor());
            QCOMPARE(bounds.width(), width);
            QVERIFY(bounds.height() >= 44);
            const QRectF inside = bounds.adjusted(16, 0, -16, 0);
            QVERIFY(inside.contains(label) && inside.contains(editor));
            QVERIFY2(!label.intersects(editor), "the title and the text overlap");
            QCOMPARE(editor.right(), inside.right());
            QVERIFY(editor.width() > width / 3.0);
        }
        const QRectF notes = stage.rect(stage.form->notesView());
        QVERIFY(notes.height() >= 3 * stage.mark().height());
    }

    void whatIsTypedStaysInSight()
    {
        Stage stage({320, 568}, {.textScale = 1.5});
        stage.setKeyboardHeight(260);
        const QRectF free(0, 44, 320, 568 - 44 - 260);
        QVERIFY(free.contains(stage.mark()));
        const double before = stage.rect(stage.form->notesView()).height();
        stage.fixture.key(Qt::Key_Return); // on to the notes
        for (int i = 0; i < 30; ++i) {
            stage.type(u"Line\r"_s);
            QVERIFY2(free.contains(stage.mark()), qPrintable(QString::number(i)));
        }
        QVERIFY(stage.rect(stage.form->notesView()).height() > 3 * before);
        for (int i = 0; i < 30; ++i)
            stage.fixture.key(Qt::Key_Up);
        QVERIFY(free.contains(stage.mark()));

        stage.form->notesView()->edit({}); // all is gone, and so is the keyboard
        stage.setKeyboardHeight(0);
        QTRY_COMPARE(stage.list()->property("contentY").toDouble(), 0.0);
    }

    void noWordIsLost_data()
    {
        addCases<Happening>({
            {"scrolled away", [](Stage &stage) { stage.list()->setProperty("contentY", 700); }},
            {"turned", [](Stage &stage) { stage.view().resize(844, 390); }},
            {"reloaded",
             [](Stage &stage) {
                 stage.form->tableView()->reloadData();
                 stage.form->nameField()->becomeFirstResponder();
             }},
            {"larger text",
             [](Stage &stage) {
                 stage.fixture.application.traits().setOverride(UIAppearance{.textScale = 2});
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
        stage.form->notesView()->edit(notes);
        stage.type(u"one "_s);
        happening(stage);
        stage.view().grabWindow();
        stage.type(u"two"_s);
        QCOMPARE(stage.form->name->value(), u"one two"_s);
        QVERIFY(QRectF(QPointF(), stage.view().size()).contains(stage.mark()));
        QCOMPARE(stage.form->notes->value(), notes);
        QCOMPARE(stage.drawing(stage.form->nameField())->childItems()[0]->property("text"),
                 u"one two"_s);
    }

    void keys()
    {
        Stage stage({320, 568}, {}, true);
        for (const char *name : {"Name", "Notes", "Cancel", "Done", "Name"}) {
            QCOMPARE(stage.fixture.focused(), QLatin1String(name));
            stage.fixture.key(Qt::Key_Tab);
        }
        stage.fixture.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(stage.fixture.focused(), u"Name"_s);
        stage.fixture.key(Qt::Key_Down); // not to another row
        stage.fixture.key(Qt::Key_Escape);
        QCOMPARE(stage.form->cancelled, 1);

        stage.fixture.key(Qt::Key_Return);
        stage.type(u"ac"_s);
        QTest::keyPress(&stage.view(), Qt::Key_Return);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(&stage.view(), &held);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_End, Qt::Key_Left})
            stage.fixture.key(key);
        stage.type(u"b"_s);
        QCOMPARE(stage.form->notes->value(), u"abc\n\n"_s);
        stage.fixture.key(Qt::Key_Escape);
        QCOMPARE(stage.form->cancelled, 1);
    }

    void touches()
    {
        Stage stage;
        const QString notes = u"Some words on a line. "_s.repeated(60);
        stage.form->notesView()->edit(notes);
        stage.view().grabWindow();
        const QQuickItem *label =
            stage.drawing(stage.form->cellOf(*stage.form->notes)->textLabel());
        WindowDriver::tap(stage.view(), WindowDriver::centre(label));
        QVERIFY(stage.form->notesView()->isFirstResponder());
        QTRY_VERIFY(stage.list()->property("contentY").toDouble() == 0);
        WindowDriver::tap(stage.view(),
                          WindowDriver::centre(stage.drawing(stage.form->nameField())));
        QVERIFY(stage.form->nameField()->isFirstResponder());

        // A finger that moves scrolls the form; what is typed goes on where it was.
        const auto offset = [&] { return stage.list()->property("contentY").toDouble(); };
        QPoint finger(160, 500);
        QTest::touchEvent(&stage.view(), WindowDriver::screen()).press(0, finger);
        const auto isScrolled = [&] {
            finger.ry() -= 5;
            QTest::touchEvent(&stage.view(), WindowDriver::screen()).move(0, finger);
            return offset() > 100;
        };
        QTRY_VERIFY(isScrolled());
        QTest::touchEvent(&stage.view(), WindowDriver::screen()).release(0, finger);
        QVERIFY(stage.form->nameField()->isFirstResponder());
        QTRY_VERIFY(!stage.list()->property("moving").toBool());

        // Where it taps, the text is edited, and the form stands still.
        const double before = offset();
        WindowDriver::tap(stage.view(), {160, 300});
        QVERIFY(stage.form->notesView()->isFirstResponder());
        QVERIFY(QRectF(0, 270, 320, 60).contains(stage.mark()));
        stage.type(u"\r\r"_s);
        QVERIFY(QRectF(0, 270 + 2 * 20, 320, 60).contains(stage.mark()));
        QCOMPARE(offset(), before);
    }

    void aLongPressSelectsAWordAndOpensItsMenu()
    {
        Stage stage;
        stage.form->notesView()->edit(u"wwwwwwww and more"_s);
        const QRectF notes = stage.rect(stage.form->notesView());
        WindowDriver::Finger finger(stage.view(), (notes.topLeft() + QPointF(30, 10)).toPoint());
        const auto menu = [&] { return stage.fixture.accessible().filter(u"MenuItem"_s); };
        QTRY_VERIFY(menu().contains(u"MenuItem Cut"_s));
        finger.lift();
        stage.fixture.key(Qt::Key_Down);
        stage.fixture.key(Qt::Key_Return);
        QVERIFY(menu().isEmpty());
        QCOMPARE(stage.form->notes->value(), u" and more"_s);
        stage.fixture.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(stage.form->notes->value(), u"wwwwwwww and more"_s);
    }

    void screenReadersFindTheEditorsOnce()
    {
        Stage stage;
        const QStringList found = stage.fixture.accessible();
        QCOMPARE(found.filter(u"Name"_s), (QStringList{u"EditableText Name"_s}));
        QCOMPARE(found.filter(u"Notes"_s), (QStringList{u"EditableText Notes"_s}));
        QVERIFY(WindowDriver::accessible(stage.view(), u"Notes"_s)->state().multiLine);
    }
};

WZT_TEST(FormDrawingTest)
#include "FormDrawingTest.moc"
