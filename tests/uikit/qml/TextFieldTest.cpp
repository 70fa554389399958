// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"
#include "tests/uikit/qml/ControlsPage.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class TextFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theKeyboardFollowsTheFirstResponder()
    {
        ControlsPage page;
        EventLog log(page.name);
        EventLog other(page.secret);
        page.name.becomeFirstResponder();
        page.type("a");
        page.fixture.tap(page.at("secret"));
        page.type("b");
        QVERIFY(page.secret.isFirstResponder());
        page.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(other.take(), u"begin changed end"_s);
        page.item("page")->setEnabled(false); // an alert covers the page
        QVERIFY(!page.name.isFirstResponder());
        page.item("page")->setEnabled(true);
        page.type("c");
        QCOMPARE(log.take(), u"begin changed end begin end begin changed"_s);
        page.name.resignFirstResponder();
        page.type("d");
        QCOMPARE(log.take(), u"end"_s);
        QCOMPARE(page.name.text(), std::optional(u"ac"_s));

        // A field that has the keyboard before it is drawn.
        UITextField early;
        early.becomeFirstResponder();
        page.fixture.show(u"UITextFieldView.qml"_s, {{u"control"_s, QVariant::fromValue(&early)}});
        page.type("e");
        QCOMPARE(early.text(), std::optional(u"e"_s));
        page.fixture.window.setSource({});
    }

    void editsArriveAndShow()
    {
        ControlsPage page;
        EventLog log(page.name);
        QTest::mouseClick(&page.fixture.window, Qt::LeftButton, {}, page.at("name"));
        page.type("one two");
        page.name.setText(u"set by the screen"_s);
        page.key(Qt::Key_Backspace);
        page.key(Qt::Key_Return);
        QCOMPARE(page.name.text(), std::optional(u"set by the scree"_s));
        QCOMPARE(page.fixture.window.rootObject()->property("returns").toInt(), 0);
        QVERIFY(log.take().endsWith(u"changed changed return"_s));

        const QPoint word = page.item("name")->mapToScene(QPointF(14 + 80, 18)).toPoint();
        QTest::mouseDClick(&page.fixture.window, Qt::LeftButton, {}, word);
        page.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"the"_s);
        QCOMPARE(page.name.text(), std::optional(u"set by  scree"_s));
        page.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(page.name.text(), std::optional(u"set by the scree"_s));
        page.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(page.name.text(), std::optional(u"set by  scree"_s));
        QTest::mouseDClick(&page.fixture.window, Qt::LeftButton, {}, word);
        QTest::mouseClick(&page.fixture.window, Qt::LeftButton, {}, word); // a third time
        page.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"set by  scree"_s);
        QGuiApplication::clipboard()->setText(u"a\nb"_s);
        page.key(Qt::Key_A, Qt::ControlModifier);
        page.key(Qt::Key_V, Qt::ControlModifier);
        page.type("c");
        QCOMPARE(page.name.text(), std::optional(u"a bc"_s));
        page.name.setText(std::nullopt);
        page.key(Qt::Key_Backspace);
        QCOMPARE(page.name.text(), std::nullopt);
    }

    void textIsComposed()
    {
        ControlsPage page;
        page.name.becomeFirstResponder();
        EventLog log(page.name);
        QInputMethodEvent composing(u"\u00b4"_s, {});
        QCoreApplication::sendEvent(page.fixture.window.activeFocusItem(), &composing);
        QCOMPARE(page.name.text(), std::optional(QString()));
        QInputMethodEvent composed;
        composed.setCommitString(u"\u00e9"_s);
        QCoreApplication::sendEvent(page.fixture.window.activeFocusItem(), &composed);
        QCOMPARE(page.name.text(), std::optional(u"\u00e9"_s));
        QCOMPARE(log.take(), u"changed"_s);
    }

    void secretsStaySecret()
    {
        ControlsPage page;
        page.secret.becomeFirstResponder();
        page.type("hunter2");
        QGuiApplication::clipboard()->setText(u"before"_s);
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X})
            page.key(key, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        QCOMPARE(page.secret.text(), std::optional(u"hunter2"_s));

        QQuickItem *input = page.fixture.window.activeFocusItem();
        QAccessibleInterface *field = QAccessible::queryAccessibleInterface(input);
        QVERIFY(field->state().passwordEdit);
        QCOMPARE(field->text(QAccessible::Name), u"Password"_s);
        for (const auto kind : {QAccessible::Value, QAccessible::Description, QAccessible::Help})
            QVERIFY2(!field->text(kind).contains(u'h'), qPrintable(field->text(kind)));
        if (QAccessibleTextInterface *text = field->textInterface())
            QVERIFY(!text->text(0, 100).contains(u'h'));
    }
};

WZT_TEST(TextFieldTest)
#include "TextFieldTest.moc"
