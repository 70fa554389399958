// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/Make.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIWindow.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"
#include "tests/xlform/SampleForm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// A form without its drawing.
class FormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsEntered_data()
    {
        using Text = std::optional<QString>;
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QStringList>("errors");
        QTest::addColumn<Text>("nameValue");
        QTest::addColumn<Text>("notesValue");
        const QStringList missing{u"name"_s};
        QTest::newRow("nothing") << u""_s << u""_s << missing << Text() << Text();
        QTest::newRow("notes alone") << u""_s << u"a\nb"_s << missing << Text() << Text(u"a\nb"_s);
        QTest::newRow("name alone") << u"Jo"_s << u""_s << QStringList() << Text(u"Jo"_s) << Text();
        QTest::newRow("blanks") << u" "_s << u"\n"_s << QStringList() << Text(u" "_s)
                                << Text(u"\n"_s);
    }

    void whatIsEntered()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, notes);
        const auto form = make<SampleForm>();
        form->nameField()->edit(u"something"_s);
        form->notesView()->edit(u"something"_s);
        form->nameField()->edit(name);
        form->notesView()->edit(notes);
        QTEST(form->formValidationErrors(), "errors");
        const auto values = form->formValues();
        QCOMPARE(values.size(), 2U);
        QTEST(values.at(u"name"_s), "nameValue");
        QTEST(values.at(u"notes"_s), "notesValue");
        QCOMPARE(form->isModalInPresentation(), !name.isEmpty() || !notes.isEmpty());
    }

    void aTableShowsTheForm()
    {
        const auto form = make<SampleForm>();
        QCOMPARE(form->navigationItem()->title(), u"Form"_s);
        const auto &entries = *form->tableView()->entries();
        const QList<bool> isRow{false, true, false, false, false, false, true, false};
        QCOMPARE(entries.rowCount(), isRow.size());
        for (int i = 0; i < isRow.size(); ++i)
            QCOMPARE(entries.indexPathOf(i).has_value(), isRow[i]);
        QCOMPARE(form->titleForFooterInSection(0), u"Below the name"_s);
        QVERIFY(!form->titleForFooterInSection(1));
        QCOMPARE(form->nameField()->accessibilityLabel(), u"Name"_s);
        QCOMPARE(form->notesView()->accessibilityLabel(), u"Notes"_s);
    }

    void aRowKeepsItsCell()
    {
        const auto form = make<SampleForm>();
        form->name->setValue(u"before"_s);
        const auto cell = form->cellForRowAtIndexPath({0, 0});
        QCOMPARE(form->nameField()->text(), u"before"_s);
        form->name->setValue(u"after"_s);
        QCOMPARE(form->nameField()->text(), u"after"_s);
        form->tableView()->entries()->rowCount();
        form->tableView()->reloadData();
        QCOMPARE(form->cellForRowAtIndexPath({0, 0}), cell);
    }

    void cellsAreConfigured()
    {
        const auto form = make<SampleForm>();
        for (const char *path : {"", "placeholder", "textView.nothing", "nothing.placeholder",
                                 "textView.placeholder.length"}) {
            form->notes->cellConfigAtConfigure()[QLatin1String(path)] = u"no"_s;
            const QByteArray message =
                QByteArray("A form's cell has nothing to set at \"") + path + '"';
            QTest::ignoreMessage(QtWarningMsg, message.constData());
        }
        QCOMPARE(form->notesView()->placeholder(), u"More about it?"_s);
    }

    void theKeyboardGoesFromRowToRow()
    {
        RecordingHost machine;
        UIApplication application(machine);
        UIWindow window;
        const auto form = make<SampleForm>();
        window.setRootViewController(form);
        QVERIFY(!application.firstResponder());
        window.makeKeyAndVisible();
        QCOMPARE(application.firstResponder(), form->nameField());
        form->nameField()->returnPressed();
        QCOMPARE(application.firstResponder(), form->notesView());
        form->presentViewController(make<UIViewController>(), false);
        form->dismissViewControllerAnimated(false); // the form appears again
        QCOMPARE(application.firstResponder(), form->notesView());

        form->tableView()->chooseRowAtIndexPath({0, 0});
        QCOMPARE(application.firstResponder(), form->nameField());
        UITextField other;
        other.becomeFirstResponder();
        QVERIFY(form->tableView()->endEditing(true));
        QCOMPARE(application.firstResponder(), &other); // which is not in the table
        form->nameField()->becomeFirstResponder();
        QVERIFY(form->tableView()->endEditing(true));
        QVERIFY(!application.firstResponder());
        Q_EMIT form->cellOf(*form->notes)->returned(); // there is no next row
    }
};

WZT_TEST(FormTest)
#include "FormTest.moc"
