// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/soak/Life.h"

#include "app/AppDelegate.h"
#include "app/Program.h"
#include "app/WZTTabBarController.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UIWindow.h"
#include "screens/home/WZTRootViewController.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "screens/login/WZTLoginViewController.h"
#include "service/TavloCategoryExtension.h"
#include "service/WZTAPI.h"
#include "tools/random/RandomRuns.h"
#include "tools/soak/Journal.h"

#include <QQuickView>
#include <QRegularExpression>
#include <QTimer>

#include <atomic>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Form = WZTIssueReporterViewController;
using Journal::note;

// No key that writes: a report keeps the title that it was submitted with.
constexpr Qt::Key keys[] = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,  Qt::Key_Down,
                            Qt::Key_Return, Qt::Key_Escape,  Qt::Key_F5,  Qt::Key_PageUp,
                            Qt::Key_Home,   Qt::Key_End,     Qt::Key_Back};

std::atomic<int> pending = 0;
/// Submissions whose outcome has not been told, by their titles.
QHash<QString, int> untold;
QtMessageHandler otherMessages = nullptr;

// The log names each report that is sent.
void hearLog(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const QRegularExpression report(u"^Query Items: .*, title = (.*), reporterId = "_s);
    const auto match = report.match(message);
    if (match.hasMatch()) {
        note("submits " + match.captured(1).toUtf8());
        ++untold[match.captured(1)];
    } else if (type != QtInfoMsg) {
        otherMessages(type, context, message);
    }
}

/// Waits for an event. After a first event has failed to come, later waits are short.
void await(const std::function<bool()> &hasCome)
{
    static int patience = 60000;
    if (!QTest::qWaitFor(hasCome, patience)) {
        note("missing");
        patience = 500;
    }
}

XLFormRowDescriptor &titleOf(const Form &form)
{
    return *form.form()->formSections().front()->formRows().front();
}

class Person : public QObject {
public:
    Person(quint32 life, useconds_t alarm, const char *disk)
        : m_dice(life), m_life(life), m_alarm(alarm), m_session(m_delegate, QFile::decodeName(disk))
    {
        otherMessages = qInstallMessageHandler(hearLog);
        connect(&m_shown, &TransitionStack::topChanged, this, &Person::hearAlert);
        UIApplication::sharedApplication()->traits().setOverride(
            DesktopAppearance{.reduceMotion = m_dice.once(2)});
        m_next.setSingleShot(true);
        connect(&m_next, &QTimer::timeout, this, &Person::step);
        m_next.start();
    }

private:
    // By a timer, which no longer runs once the application ends.
    void step()
    {
        static constexpr void (Person::*steps[])() = {
            &Person::tap,    &Person::tap,    &Person::tap,    &Person::tap,      &Person::drag,
            &Person::key,    &Person::key,    &Person::signIn, &Person::signIn,   &Person::change,
            &Person::change, &Person::ask,    &Person::ask,    &Person::fillDisk, &Person::report,
            &Person::report, &Person::goHome, &Person::goHome};
        note("step");
        (this->*m_dice.oneOf(steps))();
        if (m_alarm) {
            change();
        }
        if (m_dice.once(3)) {
            m_window.settle();
        } else {
            QTest::qWait(m_dice.below(30));
        }
        m_next.start();
    }

    QPoint place() { return RandomRuns::placeIn(m_view, m_dice); }
    void tap() { m_window.tap(place()); }
    void drag()
    {
        Finger finger(m_view, m_dice.once(3) ? QPoint(2, place().y()) : place());
        finger.move(place());
        finger.lift();
    }
    void key() { m_window.key(m_dice.oneOf(keys)); }
    void fillDisk() { m_session.setDiskFull(m_dice.once(2)); }

    void signIn()
    {
        if (auto *alert = qobject_cast<UIAlertController *>(m_shown.top())) {
            alert->triggerCancel();
        }
        auto *login = qobject_cast<WZTLoginViewController *>(m_shown.top());
        if (!login) {
            return;
        }
        login->emailTextField()->setText(m_dice.oneOf(Life::addresses));
        login->passwordTextField()->setText(Life::password);
        login->login(nullptr);
        if (m_dice.below(4) > 0) {
            await([&] { return m_shown.top() != login; });
        }
    }

    // As replies do, at any moment; perhaps the last thing that this process does.
    void change()
    {
        const QString &address = m_dice.oneOf(Life::addresses);
        WZTUser user(static_cast<int>(Life::addresses.indexOf(address)) + 1, address, address);
        user.redditUsername = QString(m_dice.below(20000), u'x');
        auto *login = qobject_cast<WZTLoginViewController *>(m_shown.top());
        ::ualarm(m_dice.once(3) ? m_alarm : 0, 0);
        if (login) {
            login->loginCompleted(1, user);
        } else if (m_session.currentUser() && m_dice.once(4)) {
            m_session.logout();
        } else if (m_session.currentUser()) {
            m_session.setCurrentUser(user);
        }
    }

    void ask()
    {
        const QByteArray number = QByteArray::number(++m_requests);
        const auto answered = [number] {
            note("answered " + number);
            --pending;
        };
        const QString package = m_dice.oneOf(WZTPackage::allPackages())->bundleIdentifier;
        note("asks " + number);
        ++pending;
        switch (m_dice.below(4)) {
        case 0:
            WZTAPI::issuesForPackageIdentifier(package, [=](auto, const auto &) { answered(); });
            break;
        case 1:
            WZTAPI::loginToAccount(m_dice.oneOf(Life::addresses), SHA256(Life::password),
                                   [=](auto, const auto &) { answered(); });
            break;
        default:
            const QString title = newTitle();
            WZTAPI::submitIssueForPackage(package, title, {}, [=](NSUInteger code) {
                if (code == 0) {
                    note("told " + title.toUtf8());
                }
                answered();
            });
        }
    }

    QString newTitle() { return u"report %1 of life %2"_s.arg(++m_titles).arg(m_life); }

    [[nodiscard]] std::shared_ptr<Form> form() const
    {
        for (const auto &each : m_shown.controllers()) {
            const auto *modal = qobject_cast<UINavigationController *>(each.get());
            const auto page = modal ? modal->viewControllers().front() : nullptr;
            if (const auto found = std::dynamic_pointer_cast<Form>(page)) {
                return found;
            }
        }
        return nullptr;
    }

    // Each outcome is an alert of its own, which may come to the top again.
    void hearAlert()
    {
        auto *alert = qobject_cast<UIAlertController *>(m_shown.top());
        const QString what = alert ? alert->title() : QString();
        if (!what.startsWith("Submission"_L1) || !form() || alert->property("heard").toBool()) {
            return;
        }
        alert->setProperty("heard", true);
        const QString title = titleOf(*form()).value().value_or(QString());
        --untold[title];
        if (what == "Submission Success"_L1) {
            note("told " + title.toUtf8());
        }
    }

    // Perhaps again before the first outcome is told.
    void report()
    {
        if (!form()) {
            openForm();
        }
        const auto filled = form();
        if (!filled) {
            return;
        }
        XLFormRowDescriptor &row = titleOf(*filled);
        if (untold.value(row.value().value_or(QString())) <= 0) {
            row.setValue(newTitle());
        }
        const QString title = row.value().value_or(QString());
        filled->submitPressed(nullptr);
        const auto isOver = [&] { return untold.value(title) <= 0 || form() != filled; };
        if (m_dice.once(2)) {
            await(isOver);
        }
    }
    void openForm()
    {
        goHome();
        if (!m_session.currentUser()) {
            return;
        }
        const auto package = m_dice.oneOf(WZTPackage::allPackages());
        const auto issues = make<WZTPackageIssuesViewController>(package);
        m_tabs.presentViewController(make<UINavigationController>(issues), true);
        m_window.settle();
        issues->addNewIssue(nullptr);
        m_window.settle();
    }

    // By way of the other tab, and with nothing under way that the journal knows of.
    void goHome()
    {
        signIn();
        if (!m_session.currentUser()) {
            return;
        }
        m_tabs.dismissViewControllerAnimated(true);
        for (const int tab : {1, 0}) {
            m_tabs.setSelectedIndex(tab);
            m_window.settle();
        }
        m_delegate.rootVC()->navigationController()->popToRootViewControllerAnimated(true);
        await([] { return pending == 0; });
        m_window.settle();
        if (m_shown.top() == &m_tabs && m_titles > 0) {
            Journal::noteHome();
        }
    }

    QTimer m_next;
    RandomRuns::Dice m_dice;
    quint32 m_life;
    useconds_t m_alarm;
    int m_titles = 0;
    int m_requests = 0;
    QQuickView &m_view =
        *qobject_cast<QQuickView *>(QGuiApplication::topLevelWindows().constFirst());
    TestWindow m_window{m_view};
    AppDelegate &m_delegate = *dynamic_cast<AppDelegate *>(WZTSession::shared());
    TransitionStack &m_shown = *m_delegate.window()->presentation();
    WZTTabBarController &m_tabs = *m_delegate.tabController();
    Journal::Session m_session;
};

} // namespace

int Life::live(int &argc, char *argv[])
{
    Journal::countObjects();
    const auto life = QByteArray(argv[1]).toUInt();
    NSURLSessionConfiguration configuration;
    configuration.connectTo = u"127.0.0.1:%1"_s.arg(QLatin1StringView(argv[2]));
    configuration.certificateAuthorityFile = QString::fromLocal8Bit(argv[3]);
    configuration.timeoutIntervalForRequest = std::chrono::seconds(2);
    const auto alarm = QByteArray(argv[4]).toUInt();
    const char *disk = argv[5];
    argc = 1;
    Program program(argc, argv, configuration);
    std::unique_ptr<Person> person;
    QTimer::singleShot(0, [&] { person = std::make_unique<Person>(life, alarm, disk); });
    return program.run({});
}
