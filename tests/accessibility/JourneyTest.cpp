// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestProcess.h"
#include "harness/TestRunner.h"
#include "sandbox/Sandbox.h"
#include "tests/accessibility/ScreenReader.h"

#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace {

using Action = std::function<bool(ScreenReader &)>;

/// An action, and then either the whole screen, top to bottom, or only the item with the focus.
struct Step {
    Action action;
    QString screen;
    QString focus = {};
};

Action press(const QString &name)
{
    return [=](ScreenReader &reader) { return reader.act(u"Press"_s, name); };
}

Action focus(const QString &name)
{
    return [=](ScreenReader &reader) { return reader.act(u"SetFocus"_s, name); };
}

// A secret says nothing but where its mark is.
Action type(const QString &name, const QString &text)
{
    return [=](ScreenReader &reader) {
        if (!reader.act(u"SetFocus"_s, name)) {
            return false;
        }
        reader.type(text);
        return QTest::qWaitFor([&] { return reader.caret(name) == text.size(); },
                               TestRunner::patience);
    };
}

Action key(int symbol)
{
    return [=](ScreenReader &reader) {
        reader.key(symbol);
        return true;
    };
}

const Action wait = [](ScreenReader &) { return true; };
const Action up = key(0xff52);
const Action down = key(0xff54);
const Action escape = key(0xff1b);
const Action menu = key(0xff67);

// The screens, from top to bottom.
const QString focused = u", focused"_s;
const QString login = u"heading Account Login|field Email%1|secret Password%2|button Login|"
                      "button Forgot Password?|button Need an Account?"_s;
const QString home =
    u"heading Home|list Home, focused|row Bug Reporter, 1 of 1, to press|"
    "row Add Public Repo, 1 of 3, to press|row Add Supporter Repo, 2 of 3, to press|"
    "row Join Discord, 3 of 3, to press|label Thanks for the support!|"
    "tabs|tab Home, selected|tab Account"_s;
const QString projects =
    u"button Back to Home|heading Projects|list Projects, focused|row Pintle, 1 of 6, to press|"
    "row Marrow!, 2 of 6, to press|row QELVAN, 3 of 6, to press|row tessaroo, 4 of 6, to press|"
    "row Halden 3, 5 of 6, to press|row KiteLoom, 6 of 6, to press|"
    "tabs|tab Home, selected|tab Account"_s;
const QString issues = u"button Cancel|heading %1 Issues|button Add|list %1 Issues%2"_s;
const QString form = u"button Cancel|heading New Issue|button Submit|list New Issue|field Title%1|"
                     "label Enter a consise descriptive title|field Notes%2"_s;
const QString notesHint = u", Have more details about reproducing this issue?"_s;
const QString account =
    u"heading Account|list Account, focused|heading Account Details|button Update|label Name: %1|"
    "label Email: jo@wzt.example|label #1 Joined Nov 16, 2026|button Logout|"
    "tabs|tab Home|tab Account, selected"_s;
const QString message = u"alert %1, %2, focused|label %1|label %2|button Dismiss"_s;
const QString update =
    u"dialog Update Account|label Update Account|field Name%1|secret New Password|"
    "secret Current Password%2|button Dismiss|button Update"_s;

// Nothing is said when the bus is there, so it is asked for until it answers.
QString accessibilityBus()
{
    const auto request = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                        u"org.a11y.Bus"_s, u"GetAddress"_s);
    QDBusReply<QString> address;
    const auto answers = [&] {
        return (address = QDBusConnection::sessionBus().call(request)).isValid();
    };
    return QTest::qWaitFor(answers, TestRunner::patience) ? address : QString();
}

} // namespace

/// The application, in a process of its own and on a display that nobody sees, is found out, signed
/// in to, used and left through the accessibility bus alone. Needs a session bus.
class JourneyTest : public QObject {
    Q_OBJECT

    void follow(ScreenReader &reader, const std::vector<Step> &steps)
    {
        for (const auto &[action, screen, focus] : steps) {
            if (QTest::currentTestFailed()) {
                return;
            }
            QVERIFY(action(reader));
            if (screen.isEmpty()) {
                QTRY_COMPARE(reader.focused(), focus + focused);
            } else {
                const QStringList shown = QString("window WZT Companion|"_L1 + screen).split(u'|');
                QTRY_COMPARE(reader.screen(), shown);
            }
        }
    }

private Q_SLOTS:
    void aWholeVisit()
    {
        const QString date = u"2026-11-16 09:30:00"_s;
        const QString project = u"example.wzt.qelvan"_s;
        sandbox::Sandbox service({.hashMemory = 8192, .hashPasses = 1});
        service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s, .joined = date},
                           u"secret"_s);
        service.addIssue({.package = project, .title = u"Slow"_s, .opened = date});
        service.stage("/issues.php", sandbox::Fault::delay(std::chrono::seconds(5)));

        TestProcess display;
        const QString hidden = u"-displayfd 1 -nolisten tcp -screen 0 1024x960x24"_s;
        const QByteArray number = display.startAndRead(u"Xvfb"_s, hidden.split(u' '));
        qputenv("DISPLAY", QByteArray(':' + number));
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("GSETTINGS_BACKEND", "memory");
        // It is to draw by hardware, finds that it cannot, and starts itself anew.
        qputenv("QT_QUICK_BACKEND", "");
        qputenv("QT_XCB_GL_INTEGRATION", "none");
        TestProcess accessibility;
        accessibility.start(u"/usr/libexec/at-spi-bus-launcher"_s,
                            {u"--launch-immediately"_s, u"--a11y=1"_s, u"--screen-reader=1"_s});
        ScreenReader reader(accessibilityBus());
        TestProcess companion;
        const QStringList arguments{service.caFile(), u"127.0.0.1:%1"_s.arg(service.port())};
        companion.start(QStringLiteral(COMPANION_UNDER_TEST), arguments);

        const QString atFirst = login.arg(focused, QString());
        follow(
            reader,
            {
                {wait, atFirst},
                {press(u"Login"_s),
                 message.arg(u"Error"_s, u"Ensure all fields are properly filled."_s)},
                {press(u"Dismiss"_s), atFirst},
                {type(u"Email"_s, u"jo@wzt.example"_s), {}, u"field Email: jo@wzt.example"_s},
                {menu, {}, u"menu Edit"_s},
                {down, {}, u"item Select All"_s},
                {escape, {}, u"field Email: jo@wzt.example"_s},
                {type(u"Password"_s, u"secret"_s), login.arg(u": jo@wzt.example"_s, focused)},
                {press(u"Login"_s), home},
                {focus(u"Thanks for the support!"_s), {}, u"list Home"_s},
                {up, {}, u"row Join Discord, 3 of 3, to press"_s},
                // Row by row.
                {press(u"Bug Reporter"_s), projects},
                {down, {}, u"row Pintle, 1 of 6, to press"_s},
                {down, {}, u"row Marrow!, 2 of 6, to press"_s},
                {focus(u"tessaroo"_s), {}, u"row tessaroo, 4 of 6, to press"_s},
                {up, {}, u"row QELVAN, 3 of 6, to press"_s},
                // A new issue.
                {press(u"QELVAN"_s), issues.arg(u"QELVAN"_s, u", focused|progress Loading"_s)},
                {wait, issues.arg(u"QELVAN"_s, u", focused|row Slow, 1 of 1"_s)},
                {press(u"Add"_s), form.arg(focused, notesHint)},
                {press(u"Submit"_s),
                 message.arg(u"Validation Error"_s, u"Ensure at least a title is entered"_s)},
                {press(u"Dismiss"_s), form.arg(focused, notesHint)},
                {type(u"Title"_s, u"Crash"_s), form.arg(u": Crash, focused"_s, notesHint)},
                {type(u"Notes"_s, u"Often"_s), form.arg(u": Crash"_s, u": Often, focused"_s)},
                {press(u"Submit"_s),
                 message.arg(u"Submission Success"_s,
                             u"Thank you for submitted an issue report"_s)},
                {press(u"Dismiss"_s),
                 issues.arg(u"QELVAN"_s, u", focused|row Crash, Often, 1 of 2|row Slow, 2 of 2"_s)},
                {press(u"Cancel"_s), {}, u"row QELVAN, 3 of 6, to press"_s},
                // The account.
                {press(u"Account"_s), account.arg(u"Jo"_s)},
                {press(u"Update"_s), update.arg(u", Jo, focused"_s, QString())},
                {type(u"Name"_s, u"Joan"_s), update.arg(u": Joan, focused"_s, QString())},
                {type(u"Current Password"_s, u"secret"_s), update.arg(u": Joan"_s, focused)},
                {press(u"Update"_s), message.arg(u"Great!"_s, u"Account successfully updated."_s)},
                {press(u"Dismiss"_s), account.arg(u"Joan"_s)},
                {down, {}, u"button Update"_s},
                {down, {}, u"button Logout"_s},
                {press(u"Logout"_s), atFirst},
            });
        QCOMPARE(service.issues(project).value(0).reporter, 1);

        TestProcess second;
        second.start(QStringLiteral(COMPANION_UNDER_TEST), arguments);
        QVERIFY(second.waitForFinished(TestRunner::patience) && second.exitCode() == 0);

        // It ends in good order while it waits for an answer.
        service.stage("/login.php", sandbox::Fault::silence());
        const auto requests = service.requests().size();
        follow(reader,
               {{type(u"Email"_s, u"jo@wzt.example"_s), {}, u"field Email: jo@wzt.example"_s},
                {type(u"Password"_s, u"x"_s), login.arg(u": jo@wzt.example"_s, focused)}});
        QVERIFY(reader.act(u"Press"_s, u"Login"_s));
        QTRY_VERIFY(service.requests().size() > requests);
        QVERIFY2(companion.end(), "not in good order");
    }
};

WZT_TEST(JourneyTest)
#include "JourneyTest.moc"
