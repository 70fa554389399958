// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/Stage.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Deed = std::function<bool(ScreenReader &)>;

/// What a person does, and all that there is then, top to bottom.
struct Step {
    Deed deed;
    QString screen;
};

/// What a person does, and what has the keyboard then.
struct Move {
    Deed deed;
    QString what;
};

using Steps = std::vector<Step>;
using Moves = std::vector<Move>;

Deed press(const QString &name)
{
    return [=](ScreenReader &reader) { return reader.act(u"Press"_s, name); };
}

Deed focus(const QString &name)
{
    return [=](ScreenReader &reader) { return reader.act(u"SetFocus"_s, name); };
}

// A secret says nothing but where its mark is.
Deed type(const QString &name, const QString &text)
{
    return [=](ScreenReader &reader) {
        if (!reader.act(u"SetFocus"_s, name))
            return false;
        reader.type(text);
        return QTest::qWaitFor([&] { return reader.caret(name) == text.size(); });
    };
}

Deed key(int symbol)
{
    return [=](ScreenReader &reader) {
        reader.key(symbol);
        return true;
    };
}

const Deed wait = [](ScreenReader &) { return true; };
const Deed tab = key(0xff09);
const Deed up = key(0xff52);
const Deed down = key(0xff54);

const QString project = u"example.wzt.qelvan"_s;

// The screens, from top to bottom.
const QString login = u"heading Account Login|field Email, focused|secret Password|button Login|"
                      "button Forgot Password?|button Need an Account?"_s;
const QString loginFilledIn =
    u"heading Account Login|field Email: jo@wzt.example|secret Password, focused|button Login|"
    "button Forgot Password?|button Need an Account?"_s;
const QString home =
    u"heading Home|list, focused|row Bug Reporter, 1 of 1|row Add Public Repo, 1 of 3|"
    "row Add Supporter Repo, 2 of 3|row Join Discord, 3 of 3|label Thanks for the support!|"
    "tabs|tab Home, selected|tab Account"_s;
const QString projects =
    u"button Back to Home|heading Projects|list, focused|row Pintle, 1 of 6|row Marrow!, 2 of 6|"
    "row QELVAN, 3 of 6|row tessaroo, 4 of 6|row Halden 3, 5 of 6|row KiteLoom, 6 of 6|"
    "tabs|tab Home, selected|tab Account"_s;
const QString issues = u"button Cancel|button Add|heading QELVAN Issues|list, focused|%1"_s;
const QString form = u"button Cancel|button Submit|heading New Issue|list|field Title%1|"
                     "label Enter a consise descriptive title|field Notes%2"_s;
const QString notesHint = u", Have more details about reproducing this issue?"_s;
const QString account =
    u"heading Account|list, focused|heading Account Details|button Update|label %1|label Name|"
    "label jo@wzt.example|label Email|label #1 Joined Nov 16, 2026|button Logout|"
    "tabs|tab Home|tab Account, selected"_s;
const QString message = u"alert %1, %2, focused|label %1|label %2|button Dismiss"_s;
const QString reset =
    u"dialog Reset Password|label Reset Password|field Email, focused|button Dismiss|button Reset"_s;
const QString registration =
    u"dialog New Account|label New Account|field Name, focused|field Email|secret Password|"
    "button Dismiss|button Register"_s;
const QString update = u"dialog Update Account|label Update Account|field Jo%1|secret New Password|"
                       "secret Current Password%2|button Dismiss|button Update"_s;
const QString focused = u", focused"_s;

} // namespace

/// The application is found out, signed in to, used and left through the accessibility bus alone.
/// Each step begins where the one before it ended.
class JourneyTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Stage> m_stage;
    bool m_lost = false;

    void follow(const std::vector<Step> &steps)
    {
        ScreenReader &reader = m_stage->reader();
        for (const Step &step : steps) {
            if (QTest::currentTestFailed())
                return;
            QVERIFY(step.deed(reader));
            const QStringList expected =
                QString("window WZT Companion|"_L1 + step.screen).split(u'|');
            QTRY_COMPARE_WITH_TIMEOUT(reader.screen(), expected, 10000);
        }
    }

    void follow(const std::vector<Move> &moves)
    {
        ScreenReader &reader = m_stage->reader();
        for (const Move &move : moves) {
            if (QTest::currentTestFailed())
                return;
            QVERIFY(move.deed(reader));
            QTRY_COMPARE_WITH_TIMEOUT(reader.focused(), move.what + focused, 10000);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString date = u"2026-11-16 09:30:00"_s;
        m_stage = std::make_unique<Stage>();
        m_stage->service().addAccount(
            {.email = u"jo@wzt.example"_s, .name = u"Jo"_s, .joined = date}, u"secret"_s);
        m_stage->service().addIssue({.package = project, .title = u"Slow"_s, .opened = date});
        m_stage->launch();
    }

    void init()
    {
        if (m_lost)
            QSKIP("lost on the way here");
    }
    void cleanup() { m_lost = m_lost || QTest::currentTestFailed(); }

    void signIn()
    {
        follow(Steps{
            {wait, login},
            {press(u"Login"_s),
             message.arg(u"Error"_s, u"Ensure all fields are properly filled."_s)},
        });
        follow(Moves{{tab, u"button Dismiss"_s}, {tab, u"button Dismiss"_s}});
        follow(Steps{{press(u"Dismiss"_s), login}, {press(u"Forgot Password?"_s), reset}});
        follow(
            Moves{{tab, u"button Dismiss"_s}, {tab, u"button Reset"_s}, {tab, u"field Email"_s}});
        follow(Steps{
            {press(u"Dismiss"_s), login},
            {press(u"Need an Account?"_s), registration},
            {press(u"Dismiss"_s), login},
        });
        follow(Moves{{type(u"Email"_s, u"jo@wzt.example"_s), u"field Email: jo@wzt.example"_s}});
        follow(Steps{{type(u"Password"_s, u"secret"_s), loginFilledIn}, {press(u"Login"_s), home}});
    }

    void rowByRow()
    {
        follow(Steps{{press(u"Bug Reporter"_s), projects}});
        follow(Moves{
            {down, u"row Pintle, 1 of 6"_s},
            {down, u"row Marrow!, 2 of 6"_s},
            {focus(u"tessaroo"_s), u"row tessaroo, 4 of 6"_s},
            {up, u"row QELVAN, 3 of 6"_s},
        });
    }

    void fileAnIssue()
    {
        m_stage->service().stage("/issues.php", sandbox::Fault::delay(500ms));
        follow(Steps{
            {press(u"QELVAN"_s), issues.arg(u"progress Loading"_s)},
            {wait, issues.arg(u"row Slow, 1 of 1"_s)},
            {press(u"Add"_s), form.arg(focused, notesHint)},
            {press(u"Submit"_s),
             message.arg(u"Validation Error"_s, u"Ensure at least a title is entered"_s)},
            {press(u"Dismiss"_s), form.arg(focused, notesHint)},
            {type(u"Title"_s, u"Crash"_s), form.arg(u": Crash, focused"_s, notesHint)},
            {type(u"Notes"_s, u"Often"_s), form.arg(u": Crash"_s, u": Often, focused"_s)},
            {press(u"Submit"_s),
             message.arg(u"Submission Success"_s, u"Thank you for submitted an issue report"_s)},
            {press(u"Dismiss"_s), issues.arg(u"row Crash, Often, 1 of 2|row Slow, 2 of 2"_s)},
        });
        const sandbox::Issue filed = m_stage->service().issues(project).value(0);
        QCOMPARE(filed.title, u"Crash"_s);
        QCOMPARE(filed.description, u"Often"_s);
        QCOMPARE(filed.reporter, 1);
        follow(Moves{{press(u"Cancel"_s), u"row QELVAN, 3 of 6"_s}});
    }

    void changeTheAccount()
    {
        follow(Steps{
            {press(u"Account"_s), account.arg(u"Jo"_s)},
            {press(u"Update"_s), update.arg(focused, QString())},
            {type(u"Jo"_s, u"Joan"_s), update.arg(u": Joan, focused"_s, QString())},
            {type(u"Current Password"_s, u"secret"_s), update.arg(u": Joan"_s, focused)},
            {press(u"Update"_s), message.arg(u"Great!"_s, u"Account successfully updated."_s)},
            {press(u"Dismiss"_s), account.arg(u"Joan"_s)},
            {press(u"Logout"_s), login},
        });
    }

    void cleanupTestCase() { QVERIFY(m_stage->quit()); }
};

WZT_TEST(JourneyTest)
#include "JourneyTest.moc"
