// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/xlform/XLFormTextFieldCell.h"
#include "platform/xlform/XLFormTextViewCell.h"
#include "screens/issues/WZTIssueReporterViewController.h"

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;
using namespace std::chrono_literals;

const QString missing = u"Validation Error|Ensure at least a title is entered|(Dismiss)"_s;
const QString success = u"Submission Success|Thank you for submitted an issue report|(Dismiss)"_s;
const QString failure = u"Submission Error|There was a problem submitting your issue. "
                        "If this persists, let WZT know.|(Dismiss)"_s;

// Jo is signed in and has the form open for the first project.
struct ReporterStage : TestApp {
    ReporterStage()
    {
        launchSignedIn();
        open();
    }

    void open()
    {
        form = make<WZTIssueReporterViewController>(package);
        delegate().tabController()->presentViewController(make<UINavigationController>(form),
                                                          false);
    }
    template <typename Cell>
    [[nodiscard]] Cell &cell(std::size_t section)
    {
        const auto &row = form->form()->formSections().at(section)->formRows().at(0);
        return static_cast<Cell &>(*form->cellOf(*row));
    }
    [[nodiscard]] UITextField &title() { return *cell<XLFormTextFieldCell>(0).textField(); }
    [[nodiscard]] UITextView &notes() { return *cell<XLFormTextViewCell>(2).textView(); }
    void submit() { form->navigationItem()->rightBarButtonItem()->trigger(); }
    void cancel() { form->navigationItem()->leftBarButtonItem()->trigger(); }
    void dismissAlert() { top<UIAlertController>()->triggerCancel(); }
    /// How many controllers are in the window: the tabs alone, or the form and alerts as well.
    [[nodiscard]] int shown() { return delegate().window()->presentation()->rowCount(); }
    std::shared_ptr<WZTPackage> package = WZTPackage::allPackages().front();
    std::shared_ptr<WZTIssueReporterViewController> form;
};

// Title and notes, a fault, what is sent after the project (empty for nothing), and the alert.
using Outcome = std::tuple<const char *, QString, QString, std::optional<Fault>, QString, QString>;

} // namespace

/// The issue reporter's flow, from a touch to the service and back.
class IssueReporterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        const QString text = u"It crashes"_s;
        const QString title = u"&title=It%20crashes&reporterId=1"_s;
        const QString both = title + u"&description=a%0Ab"_s;
        const QString blanks = u"&title=%20&reporterId=1&description=%20"_s;
        const auto refused = Fault::json(R"({"result":"success"})");
        addCases<Outcome>({
            {"notes alone", {}, u"a\nb"_s, {}, {}, missing},
            {"a title alone", text, {}, {}, title, success},
            {"both", text, u"a\nb"_s, Fault::delay(100ms), both, success},
            {"blanks", u" "_s, u" "_s, {}, blanks, success},
            {"refused", text, u"a\nb"_s, refused, both, failure},
            {"no answer", text, {}, Fault::close(), title, failure},
        });
    }

    void outcomes()
    {
        const auto &[name, title, notes, fault, sent, alert] = currentCase<Outcome>();
        ReporterStage stage;
        if (fault) {
            stage.service().stage("/submitissue.php", *fault);
        }
        stage.title().edit(title);
        stage.notes().edit(notes);
        stage.submit();
        QCOMPARE(stage.application().firstResponder() == nullptr, !sent.isEmpty());
        QTRY_COMPARE(stage.alert(), alert);
        const auto requests = stage.service().requests();
        QCOMPARE(requests.size(), sent.isEmpty() ? 0 : 1);
        if (!requests.isEmpty()) {
            QCOMPARE(requests[0].method, "POST");
            QCOMPARE(QString::fromLatin1(requests[0].target),
                     u"/submitissue.php?packageId="_s + stage.package->bundleIdentifier + sent);
        }
        stage.dismissAlert();
        QCOMPARE(stage.shown(), alert == success ? 1 : 2);
        QCOMPARE(stage.title().text(), title);
        QCOMPARE(stage.notes().text(), notes);
        if (alert == failure) { // and can be sent again
            stage.submit();
            QTRY_COMPARE(stage.alert(), success);
        }
    }

    void everyTapIsASubmission()
    {
        ReporterStage stage;
        stage.title().edit(u"Twice"_s);
        stage.submit();
        stage.submit();
        QTRY_COMPARE(stage.shown(), 4); // two alerts
        QCOMPARE(stage.service().issues(stage.package->bundleIdentifier).size(), 2);
        stage.dismissAlert();
        QCOMPARE(stage.shown(), 1);
    }

    void cancelSendsNothingAndHearsNothing()
    {
        ReporterStage stage;
        stage.title().edit(u"Never"_s);
        stage.cancel();
        QCOMPARE(stage.shown(), 1);
        QVERIFY(stage.service().requests().isEmpty());
        stage.open();
        QVERIFY(!stage.form->isModalInPresentation()); // nothing was kept

        // A reply that comes after Cancel.
        stage.service().stage("/submitissue.php", Fault::delay(50ms));
        stage.title().edit(u"Late"_s);
        stage.submit();
        stage.cancel();
        const QPointer<QObject> form = stage.form.get();
        stage.form.reset();
        QTRY_VERIFY(!form); // the reply was the last to hold it
        QCOMPARE(stage.shown(), 1);
        QCOMPARE(stage.service().requests().size(), 1);
    }
};

WZT_TEST(IssueReporterTest)
#include "IssueReporterTest.moc"
