// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/screens/ScreenStage.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

qsizetype rings(const TestWindow &window)
{
    return std::ranges::count_if(window.items(u"FocusRing"_s), &QQuickItem::isVisible);
}

QStringList walk(const TestWindow &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QStringList names;
    for (QString now = window.focused(); !names.contains(now); now = window.focused()) {
        names.append(now);
        window.key(key, modifiers);
    }
    return names;
}

struct Seen {
    QString name;
    QRectF rect; // that it, or its text, takes in the window
    double slope; // of a rotated item: above 0 when its baseline falls
};

/// Collects `item` and its descendants, as far as they are visible.
void collect(QQuickItem *item, QList<Seen> &seen)
{
    const QString type = QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0);
    if (!item->isVisible() || type == u"TextCursor"_s) {
        return;
    }
    const QPointF along = item->mapToScene({1, 0}) - item->mapToScene({0, 0});
    const QRectF area = painted(item);
    if (!area.isEmpty()) {
        seen.append({type + u' ' + item->property("text").toString(), area, along.x() * along.y()});
    }
    // Where a text begins that is edited is up to its letters.
    if (type == u"TextFieldInput"_s || type == u"UITextViewView"_s) {
        return;
    }
    for (QQuickItem *child : item->childItems()) {
        collect(child, seen);
    }
}

} // namespace

/// Keyboard, wheel and mirroring on every screen.
class ScreensDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void theKeyboardComesToEverything_data() { addCases(allScreens()); }

    void theKeyboardComesToEverything()
    {
        const Screen &screen = currentCase<Screen>();
        ScreenStage stage(screen, {.appearance = {.textScale = 2, .reduceMotion = true}});
        QQuickView &view = stage.view();
        QCOMPARE(rings(stage), 0);
        const QStringList forth = walk(stage, Qt::Key_Tab);
        QCOMPARE(forth.join(u", "_s), QLatin1String(screen.walk));
        QStringList back = walk(stage, Qt::Key_Backtab, Qt::ShiftModifier);
        back.append(back.takeFirst());
        std::ranges::reverse(back);
        QCOMPARE(back, forth);
        for (int i = 0; i < forth.size(); ++i) {
            const bool edits =
                view.activeFocusItem()->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
            QCOMPARE(rings(stage), edits ? 0 : 1);
            const QPointF middle = TestWindow::rect(view.activeFocusItem()).center();
            const QQuickItem *page = view.activeFocusItem();
            while (page->parentItem() && !page->inherits("QQuickFlickable")) {
                page = page->parentItem();
            }
            QVERIFY2(TestWindow::rect(page).contains(middle), "it is out of sight");
            stage.key(Qt::Key_Tab);
        }
        // A touch anywhere hides the focus ring.
        stage.key(Qt::Key_Backtab);
        QCOMPARE(rings(stage), 1);
        stage.tap(QPoint(160, 5));
        QCOMPARE(rings(stage), 0);
    }

    void keysLeaveTheScreen_data() { addCases(allScreens()); }

    void keysLeaveTheScreen()
    {
        const Screen &screen = currentCase<Screen>();
        for (const int tabs : {0, 2, 3}) {
            ScreenStage stage(screen);
            for (int i = 0; i < tabs; ++i) {
                stage.key(Qt::Key_Tab);
            }
            QTest::keyClick(&stage.view(), Qt::Key_Left, Qt::AltModifier);
            stage.settle();
            QVERIFY(stage.accessible(QLatin1String(screen.back)));
            stage.key(Qt::Key_Escape);
            stage.settle();
            QVERIFY(stage.accessible(QLatin1String(screen.escaped)));
            QVERIFY(QByteArray(screen.back) == screen.escaped
                    || !stage.accessible(QLatin1String(screen.back)));
            QVERIFY(stage.view().activeFocusItem()->isVisible());
        }
    }

    void aTouchThatOutlivesItsPageTakesNoKeyboard()
    {
        ScreenStage stage("Login");
        auto *login = stage.top<WZTLoginViewController>();
        Finger finger(stage.view(), stage.centre(u"Email"_s));
        login->displayErrorMessage(u"Meanwhile"_s);
        stage.settle();
        finger.lift();
        stage.key(Qt::Key_Return);
        stage.settle();
        QCOMPARE(stage.top(), login);
    }

    // A row, a button, and a text view, back.
    void theWheelScrollsWhateverIsBelow()
    {
        for (const auto &[screen, over, direction] : {std::tuple("Home", u"Bug Reporter"_s, -1),
                                                      {"Account", u"Update"_s, -1},
                                                      {"new issue", u"Notes"_s, 1}}) {
            ScreenStage stage(screen, {.appearance = {.textScale = 2, .reduceMotion = true}});
            if (direction > 0) {
                stage.key(Qt::Key_Tab);
                stage.type(u"\r"_s.repeated(20));
            }
            QQuickView &view = stage.view();
            stage.grab();
            const QAccessibleInterface *item = stage.accessible(over);
            const auto place = [&] { return view.mapFromGlobal(item->rect().center()).y(); };
            for (const int pixels : {0, 15}) { // a mouse's, a touchpad's
                const int before = place();
                const QPointF at(160, qBound(60, before, 500));
                QWheelEvent turn(at, view.mapToGlobal(at), {0, direction * pixels},
                                 {0, direction * 120}, Qt::NoButton, Qt::NoModifier,
                                 pixels ? Qt::ScrollBegin : Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(&view, &turn);
                QTRY_VERIFY((place() - before) * direction > 0);
            }
        }
    }

    void everythingIsMirrored_data() { addCases(allScreens()); }

    void everythingIsMirrored()
    {
        const Screen &screen = currentCase<Screen>();
        QList<Seen> seen[2];
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            ScreenStage stage(screen);
            QTRY_VERIFY(!stage.accessible(u"Loading"_s));
            stage.grab();
            collect(stage.view().contentItem(), seen[direction]);
        }
        QCOMPARE(seen[1].size(), seen[0].size());
        for (int i = 0; i < seen[0].size(); ++i) {
            const auto &[name, rect, slope] = seen[0][i];
            const auto &[same, other, otherSlope] = seen[1][i];
            const QRectF mirrored(320 - rect.right(), rect.y(), rect.width(), rect.height());
            QVERIFY2(qAbs(other.x() - mirrored.x()) <= 1
                         && qAbs(other.right() - mirrored.right()) <= 1
                         && qAbs(otherSlope + slope) < 0.1,
                     qPrintable(name));
        }
    }
};

WZT_TEST(ScreensDrawingTest)
#include "ScreensDrawingTest.moc"
