// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "harness/TestWindow.h"
#include "sandbox/DemoIssues.h"
#include "tools/random/RandomRuns.h"
#include "tools/random/WindowRules.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 runs = 5;
constexpr int stepsOfARun = 60;

constexpr Qt::Key someKeys[] = {
    Qt::Key_Tab,  Qt::Key_Tab,  Qt::Key_Backtab,   Qt::Key_Up,     Qt::Key_Down,
    Qt::Key_Down, Qt::Key_Left, Qt::Key_Return,    Qt::Key_Space,  Qt::Key_Escape,
    Qt::Key_Home, Qt::Key_End,  Qt::Key_F5,        Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Menu, Qt::Key_Back, Qt::Key_Backspace, Qt::Key_A,      Qt::Key_M,
};
constexpr QSize sizes[] = {{320, 568}, {390, 844}, {844, 390}, {768, 1024}};

/// One run: somebody, signed in or not, who touches the real window.
class Touches : TestApp, TestWindow {
public:
    explicit Touches(quint32 seed) : m_dice(seed)
    {
        service().addIssues(sandbox::demoIssues());
        m_dice.below(4) > 0 ? launchSignedIn() : launch();
        open(*delegate().window(), m_dice.oneOf(sizes), appearance());
        m_rules.emplace(view(), *delegate().window()->presentation());
        TestWindow::settle();
        QGuiApplication::clipboard()->setText(u"two\nlines"_s);
    }
    ~Touches()
    {
        close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Q_DISABLE_COPY_MOVE(Touches)

    QString run()
    {
        for (int i = 0; i < stepsOfARun && m_fault.isEmpty(); ++i) {
            step();
            if (m_dice.once(3)) {
                settle();
            } else {
                QTest::qWait(m_dice.below(40));
            }
        }
        return m_fault.isEmpty() ? QString() : m_fault + u" after "_s + m_log.join(u", "_s);
    }

private:
    using Row = WindowRules::Row;

    DesktopAppearance appearance()
    {
        using enum UIUserInterfaceStyle;
        return {m_dice.once(2) ? Light : Dark, m_dice.once(3) ? 1.6 : 1, m_dice.once(3)};
    }

    void fault(const QString &what)
    {
        if (m_fault.isEmpty()) {
            m_fault = what;
        }
    }

    void step()
    {
        static constexpr std::pair<void (Touches::*)(), const char *> steps[] = {
            {&Touches::tapOnce, "tap"},
            {&Touches::tapOnce, "tap"},
            {&Touches::tapOnce, "tap"},
            {&Touches::tapTwice, "two taps"},
            {&Touches::click, "click"},
            {&Touches::drag, "drag"},
            {&Touches::drag, "drag"},
            {&Touches::swipe, "swipe"},
            {&Touches::twoFingers, "two fingers"},
            {&Touches::holdAndReload, "hold, reload"},
            {&Touches::dragAndReload, "drag, reload"},
            {&Touches::key, "key"},
            {&Touches::key, "key"},
            {&Touches::edit, "edit"},
            {&Touches::change, "change"},
        };
        const auto &[run, name] = m_dice.oneOf(steps);
        m_log.append(QLatin1String(name));
        m_rules->begin();
        (this->*run)();
    }

    void acted(const QList<Row> &rows, int pages) { fault(m_rules->acted(rows, pages)); }

    void settle()
    {
        TestWindow::settle();
        fault(QTest::currentTestFailed() ? u"a transition does not end"_s : m_rules->settled());
    }

    QPoint place()
    {
        const QPoint at = RandomRuns::placeIn(view(), m_dice);
        m_log.last() += u" %1,%2"_s.arg(at.x()).arg(at.y());
        return at;
    }
    QPoint away(const QPoint &from, int along, int across)
    {
        const QPoint to = from
            + QPoint(m_dice.between(-across, across),
                     m_dice.between(20, along) * (m_dice.once(2) ? 1 : -1));
        return {qBound(0, to.x(), view().width() - 1), qBound(0, to.y(), view().height() - 1)};
    }

    // A tap on a row of a window that is still chooses it, and no other tap does.
    void tapAt(const QPoint &at, int times)
    {
        const bool still = m_rules->isStill();
        const Row row = m_rules->rowAt(at);
        for (int i = 0; i < times; ++i) {
            TestWindow::tap(at);
        }
        if (still && row.at && m_rules->chosen().isEmpty()) {
            fault(u"a row that is tapped does nothing"_s);
        }
        acted(QList<Row>(times, row), times);
    }
    void tapOnce() { tapAt(place(), 1); }
    void tapTwice() { tapAt(place(), 2); }

    void click()
    {
        const QPoint at = place();
        const Row row = m_rules->rowAt(at);
        m_dice.once(2)
            ? QTest::mouseDClick(&view(), Qt::LeftButton, {}, at)
            : QTest::mouseClick(&view(), m_dice.once(4) ? Qt::RightButton : Qt::LeftButton, {}, at);
        acted({row, row}, 2);
    }

    void drag()
    {
        const QPoint from = place();
        Finger finger(view(), from);
        QTest::qWait(m_dice.once(3) ? 120 : 0);
        finger.move(away(from, 150, 40));
        if (m_dice.once(5)) {
            QTouchEvent cancel(QEvent::TouchCancel, Finger::screen());
            QCoreApplication::sendEvent(&view(), &cancel);
        }
        finger.lift();
        // Where nothing scrolls a control has the touch all the way.
        acted({}, 1);
    }

    void swipe()
    {
        const QPoint from(m_dice.below(20), m_dice.below(view().height()));
        const int along = m_dice.between(-60, 60);
        const Row row = m_rules->rowAt(from);
        Finger finger(view(), from);
        finger.move(from + QPoint(m_dice.between(20, 200), along));
        if (m_dice.once(3)) {
            view().resize(m_dice.oneOf(sizes));
        }
        finger.move(finger.at() + QPoint(m_dice.between(-20, 60), 0));
        finger.lift();
        acted(qAbs(along) > 10 ? QList<Row>() : QList<Row>{row}, 1); // or else it has scrolled
    }

    void twoFingers()
    {
        const QPoint one = place();
        const QPoint other = place();
        const Row first = m_rules->rowAt(one);
        const Row second = m_rules->rowAt(other);
        QTest::QTouchEventSequence fingers = QTest::touchEvent(&view(), Finger::screen(), false);
        fingers.press(0, one).press(1, other).commit();
        QTest::qWait(m_dice.once(2) ? 120 : 0);
        fingers.release(0, one).release(1, other).commit();
        acted({first, second}, 1);
    }

    void holdAndReload()
    {
        const QPoint at = place();
        const Row row = m_rules->rowAt(at);
        Finger finger(view(), at);
        QTest::qWait(m_dice.once(2) ? 120 : 0);
        row.table ? row.table->reloadData() : reload();
        finger.lift();
        acted({}, row.table ? 0 : 1);
    }

    void dragAndReload()
    {
        const QPoint from = place();
        Finger finger(view(), from);
        finger.move(away(from, 150, 10));
        QPointer<QQuickItem> list = m_rules->list();
        const bool drags = list && list->property("dragging").toBool();
        const double before = list ? list->property("contentY").toDouble() : 0;
        reload();
        grab();
        if (drags && (!list || qAbs(list->property("contentY").toDouble() - before) > 0.5)) {
            fault(u"a reload moves the list under the finger"_s);
        }
        finger.move(away(finger.at(), 60, 10));
        finger.lift();
        acted({}, 1);
    }

    void reload()
    {
        if (const QQuickItem *list = m_rules->list()) {
            WindowRules::tableOf(*list)->reloadData();
        }
    }

    void key()
    {
        const Qt::Key key = m_dice.oneOf(someKeys);
        m_log.last() += u" %1"_s.arg(static_cast<int>(key), 0, 16);
        const bool chooses = key == Qt::Key_Return || key == Qt::Key_Space;
        TestWindow::key(key);
        if (std::ssize(m_rules->chosen()) > (chooses ? 1 : 0)) {
            fault(u"a key chooses a row"_s);
        }
        acted(m_rules->chosen(), 1);
    }

    void edit()
    {
        constexpr Qt::Key edits[] = {Qt::Key_A, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y};
        TestWindow::key(m_dice.oneOf(edits), Qt::ControlModifier);
        acted({}, 0);
    }

    void change()
    {
        switch (m_dice.below(5)) {
        case 0:
            view().resize(m_dice.oneOf(sizes));
            break;
        case 1:
            application().traits().setOverride(appearance());
            break;
        case 2:
            showKeyboard(m_dice.once(2) ? 216 : 0);
            break;
        case 3:
            reload();
            break;
        default:
            otherWindow();
        }
        acted({}, 0);
    }

    // Another window has the keyboard for a moment.
    void otherWindow()
    {
        QQuickWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other, TestRunner::patience));
        other.close();
        view().requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&view(), TestRunner::patience));
    }

    RandomRuns::Dice m_dice;
    QStringList m_log;
    QString m_fault;
    std::optional<WindowRules> m_rules;
};

} // namespace

/// Random touches and keys on the application's window, over a service of its own.
class RandomTouches : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepTheRules()
    {
        RandomRuns::each(runs, [](quint32 seed) { return Touches(seed).run(); });
    }
};

WZT_TEST(RandomTouches)
#include "RandomTouches.moc"
