// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "tests/screens/ScreenStage.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

struct IssuesStage : ScreenStage {
    IssuesStage() : ScreenStage("Home", {.size = {390, 844}}) {}
};

// A way to choose the item of that name.
using Way = std::tuple<const char *, void (*)(TestWindow &, const QString &)>;

void touch(TestWindow &window, const QString &name)
{
    window.tap(name);
}

void keys(TestWindow &window, const QString &name)
{
    const QAccessibleInterface &wanted = *window.accessible(name);
    if (wanted.role() == QAccessible::ListItem) {
        const QString position = wanted.text(QAccessible::Description); // "2 of 6"
        for (int i = 0; i < position.section(u' ', 0, 0).toInt(); ++i) {
            window.key(Qt::Key_Down);
        }
        window.key(Qt::Key_Return);
    } else {
        for (int i = 0; i < 8 && window.view().activeFocusItem() != wanted.object(); ++i) {
            window.key(Qt::Key_Tab);
        }
        window.key(Qt::Key_Space);
    }
}

} // namespace

/// The way from Home to a project's issues, to a new one and back, as it is drawn.
class IssuesDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anIssueIsReported_data() { addCases<Way>({{"touch", touch}, {"keyboard", keys}}); }

    void anIssueIsReported()
    {
        const auto choose = std::get<1>(currentCase<Way>());
        IssuesStage stage;
        TestWindow &window = stage;
        const auto go = [&](const QString &to) {
            choose(window, to);
            window.settle();
        };
        const auto showsAll = [&](const QList<sandbox::Issue> &issues) {
            return std::ranges::all_of(issues, [&](const sandbox::Issue &issue) {
                const QStringList texts{issue.title, *issue.description};
                const QString position =
                    u"%1 of %2"_s.arg(issues.indexOf(issue) + 1).arg(issues.size());
                const auto *row = window.accessible(texts.join(u", "_s));
                return row && row->text(QAccessible::Description) == position;
            });
        };
        const auto filed = [&] { return stage.service().issues(u"example.wzt.itsmarrow"_s); };
        go(u"Bug Reporter"_s);
        go(u"Marrow!"_s);
        QVERIFY2(!window.accessible(u"Pintle"_s), "what is covered is read out");
        QTRY_VERIFY(showsAll(filed()));

        go(u"Add"_s);
        window.type(u"It crashes"_s);
        window.key(Qt::Key_Return);
        window.type(u"Every\rtime"_s);
        window.key(Qt::Key_Escape); // loses nothing
        go(u"Submit"_s);
        QTRY_VERIFY(window.accessible(u"Submission Success"_s));
        QVERIFY(!stage.application().firstResponder());
        window.settle();
        QVERIFY2(!window.accessible(u"Submit"_s), "what an alert blocks is read out");
        go(u"Dismiss"_s);
        QCOMPARE(filed().size(), 4);
        QCOMPARE(filed()[0].title, u"It crashes"_s);
        QCOMPARE(filed()[0].description, u"Every\ntime"_s);
        QTRY_VERIFY(showsAll(filed()));
        go(u"Cancel"_s);
        go(u"Back to Home"_s);
        QVERIFY(window.accessible(u"Bug Reporter"_s));
    }

    void aDoubleTapGoesOneScreenFurther()
    {
        IssuesStage stage;
        const QPoint row = stage.centre(u"Bug Reporter"_s);
        for (int i = 0; i < 2; ++i) { // a project comes to the same place
            stage.tap(row);
        }
        stage.settle();
        QVERIFY(stage.accessible(u"Projects"_s));
    }

    void theSpinnerIsOverTheMiddle()
    {
        IssuesStage stage;
        QVERIFY2(!stage.named(u"indicator"_s)->isVisible(), "Home");
        stage.service().stage("/issues.php", sandbox::Fault::silence());
        auto issues = make<WZTPackageIssuesViewController>(WZTPackage::allPackages().front());
        stage.delegate().rootVC()->showViewController(issues);
        stage.settle();
        const QQuickItem *spinner = stage.drawing(issues->activityIndicator());
        const QQuickItem *table = stage.drawing(issues->tableView());
        QVERIFY(spinner->isVisible());
        QCOMPARE(stage.centre(spinner), stage.centre(table));
        QCOMPARE(table->childItems().last(), spinner); // nothing is drawn over it
        QVERIFY(stage.accessible(u"Loading"_s));
    }
};

WZT_TEST(IssuesDrawingTest)
#include "IssuesDrawingTest.moc"
