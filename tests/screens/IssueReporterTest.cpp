// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UINavigationItem.h"
#include "platform/xlform/XLFormTextFieldCell.h"
#include "platform/xlform/XLFormTextViewCell.h"
#include "screens/WZTIssueReporterViewController.h"
#include "tests/support/Cases.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;
using namespace std::chrono_literals;

const QStringList missing{u"Validation Error"_s, u"Ensure at least a title is entered"_s};
const QStringList success{u"Submission Success"_s, u"Thank you for submitted an issue report"_s};
const QStringList failure{
    u"Submission Error"_s,
    u"There was a problem submitting your issue. If this persists, let WZT know."_s};

// Jo is signed in and has the form open for the first project.
struct Stage {
    Stage()
    {
        const auto account =
            app.service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
        app.keepUser(WZTUser(static_cast<int>(account->number), account->email, account->name));
        app.launch();
        app.delegate().tabController()->presentViewController(make<UINavigationController>(form),
                                                              false);
    }

    [[nodiscard]] XLFormRowDescriptor &row(std::size_t section)
    {
        return *form->form()->formSections().at(section)->formRows().at(0);
    }
    [[nodiscard]] UITextField &title()
    {
        return *std::static_pointer_cast<XLFormTextFieldCell>(form->cellOf(row(0)))->textField();
    }
    [[nodiscard]] UITextView &notes()
    {
        return *std::static_pointer_cast<XLFormTextViewCell>(form->cellOf(row(2)))->textView();
    }
    void submit() { form->navigationItem()->rightBarButtonItem()->trigger(); }
    void cancel() { form->navigationItem()->leftBarButtonItem()->trigger(); }
    [[nodiscard]] QStringList alert()
    {
        const auto *shown = app.top<UIAlertController>();
        return shown ? QStringList{shown->title(), shown->message()} : QStringList();
    }
    void dismissAlert()
    {
        auto *alert = app.top<UIAlertController>();
        QCOMPARE(alert->actions().size(), 1U);
        QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
        QCOMPARE(alert->actions()[0]->style(), UIAlertAction::Style::Cancel);
        alert->trigger(alert->actions()[0].get());
    }
    /// How many controllers are in the window: the tabs alone, or the form and alerts as well.
    [[nodiscard]] int shown() { return app.delegate().window()->presentation()->rowCount(); }

    TestApp app;
    std::shared_ptr<WZTPackage> package = WZTPackage::allPackages().front();
    std::shared_ptr<WZTIssueReporterViewController> form =
        make<WZTIssueReporterViewController>(package);
};

struct Outcome {
    const char *name;
    QString title;
    QString notes;
    std::optional<Fault> fault;
    QString sent; // after the project, empty for nothing
    QStringList alert;
    bool closes;
};

} // namespace

/// The issue reporter's flow, from a touch to the service and back.
class IssueReporterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opens()
    {
        Stage stage;
        QCOMPARE(stage.form->navigationItem()->title(), u"New Issue"_s);
        QCOMPARE(stage.form->package(), stage.package);
        QCOMPARE(stage.form->navigationItem()->leftBarButtonItem()->title(), u"Cancel"_s);
        QCOMPARE(stage.form->navigationItem()->rightBarButtonItem()->title(), u"Submit"_s);
        QCOMPARE(stage.app.application().firstResponder(), &stage.title());
        QCOMPARE(stage.form->numberOfSections(), 3);
        QCOMPARE(stage.form->numberOfRowsInSection(1), 0);
        QCOMPARE(stage.form->titleForFooterInSection(0), u"Enter a consise descriptive title"_s);
        QCOMPARE(stage.title().accessibilityLabel(), u"Title"_s);
        QCOMPARE(stage.notes().accessibilityLabel(), u"Notes"_s);
        QCOMPARE(stage.notes().placeholder(), u"Have more details about reproducing this issue?"_s);
    }

    void outcomes_data()
    {
        const QString title = u"&title=It%20crashes&reporterId=1"_s;
        const QString both = title + u"&description=a%0Ab"_s;
        const QString text = u"It crashes"_s;
        const auto refused = Fault::json(R"({"result":"success"})");
        addCases<Outcome>({
            {"nothing typed", {}, {}, {}, {}, missing, false},
            {"notes alone", {}, u"a\nb"_s, {}, {}, missing, false},
            {"a title alone", text, {}, {}, title, success, true},
            {"both", text, u"a\nb"_s, {}, both, success, true},
            {"blanks",
             u" "_s,
             u" "_s,
             {},
             u"&title=%20&reporterId=1&description=%20"_s,
             success,
             true},
            {"slowly", text, {}, Fault::delay(100ms), title, success, true},
            {"an unreadable reply", text, {}, Fault::json("<html>", 500), title, success, true},
            {"refused", text, u"a\nb"_s, refused, both, failure, false},
            {"no answer", text, {}, Fault::close(), title, failure, false},
        });
    }

    void outcomes()
    {
        const Outcome &outcome = currentCase<Outcome>();
        Stage stage;
        if (outcome.fault)
            stage.app.service().stage("/submitissue.php", *outcome.fault);
        stage.title().edit(outcome.title);
        stage.notes().edit(outcome.notes);
        stage.submit();
        QCOMPARE(stage.app.application().firstResponder() == nullptr, !outcome.sent.isEmpty());
        QTRY_COMPARE(stage.alert(), outcome.alert);
        const auto requests = stage.app.service().requests();
        QCOMPARE(requests.size(), outcome.sent.isEmpty() ? 0 : 1);
        if (!requests.isEmpty()) {
            QCOMPARE(requests[0].method, "POST");
            const QString sent =
                u"/submitissue.php?packageId="_s + stage.package->bundleIdentifier + outcome.sent;
            QCOMPARE(QString::fromLatin1(requests[0].target), sent);
        }
        stage.dismissAlert();
        QCOMPARE(stage.shown(), outcome.closes ? 1 : 2);
        QCOMPARE(stage.title().text(), outcome.title);
        QCOMPARE(stage.notes().text(), outcome.notes);
    }

    void everyTapIsASubmission()
    {
        Stage stage;
        stage.title().edit(u"Twice"_s);
        stage.submit();
        stage.submit();
        QTRY_COMPARE(stage.shown(), 4); // two alerts
        QCOMPARE(stage.app.service().issues(stage.package->bundleIdentifier).size(), 2);
        stage.dismissAlert();
        QCOMPARE(stage.shown(), 1);
    }

    void afterAFailureItCanBeSentAgain()
    {
        Stage stage;
        stage.app.service().stage("/submitissue.php", Fault::reset());
        stage.title().edit(u"Again"_s);
        stage.submit();
        QTRY_COMPARE(stage.alert(), failure);
        stage.dismissAlert();
        stage.submit();
        QTRY_COMPARE(stage.alert(), success);
    }

    void cancelSendsNothingAndHearsNothing()
    {
        Stage stage;
        stage.title().edit(u"Never"_s);
        stage.cancel();
        QCOMPARE(stage.shown(), 1);
        QVERIFY(stage.app.service().requests().isEmpty());
        stage.form = make<WZTIssueReporterViewController>(stage.package);
        stage.app.delegate().tabController()->presentViewController(
            make<UINavigationController>(stage.form), false);
        QVERIFY(!stage.form->isModalInPresentation()); // nothing was kept

        // A reply that comes after Cancel.
        stage.app.service().stage("/submitissue.php", Fault::delay(50ms));
        stage.title().edit(u"Late"_s);
        stage.submit();
        stage.cancel();
        const QPointer<QObject> form = stage.form.get();
        stage.form.reset();
        QTRY_VERIFY(!form); // the reply was the last to hold it
        QCOMPARE(stage.shown(), 1);
        QCOMPARE(stage.app.service().requests().size(), 1);
    }
};

WZT_TEST(IssueReporterTest)
#include "IssueReporterTest.moc"
