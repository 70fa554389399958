// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/Make.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIWindow.h"
#include "tests/support/Cases.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestRunner.h"
#include "tests/xlform/SampleForm.h"

using namespace Qt::StringLiterals;

namespace {

// What is entered, and the rows in error.
using Entry = std::tuple<const char *, QString, QString, QStringList>;

// The value of a row with that text.
std::optional<QString> valueOf(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

} // namespace

/// A form without its drawing.
class FormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsEntered_data()
    {
        addCases<Entry>({{"nothing", {}, {}, {u"name"_s}},
                         {"notes alone", {}, u"a\nb"_s, {u"name"_s}},
                         {"name alone", u"Jo"_s, {}, {}},
                         {"blanks", u" "_s, u"\n"_s, {}}});
    }

    void whatIsEntered()
    {
        const auto &[label, name, notes, errors] = currentCase<Entry>();
        const auto form = make<SampleForm>();
        for (const auto &text : {QString(u"something"_s), name})
            form->nameField()->edit(text);
        for (const auto &text : {QString(u"something"_s), notes})
            form->notesView()->edit(text);
        QCOMPARE(form->formValidationErrors(), errors);
        const XLFormViewController::Values values{{u"name"_s, valueOf(name)},
                                                  {u"notes"_s, valueOf(notes)}};
        QCOMPARE(form->formValues(), values);
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
        QVERIFY(form->tableView()->entries()->rowCount() > 0);
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
