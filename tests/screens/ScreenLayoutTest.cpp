// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/screens/ScreenStage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize sizes[] = {{320, 568}, {390, 844}, {768, 1024}, {1280, 800}, {568, 320}};
constexpr double textScales[] = {1, 1.5, 2};
/// The least distance of a text from an edge of the window, in points.
constexpr double margin = 8;

/// A text as it is drawn.
struct Drawn {
    QString text;
    QRectF whole; // in the window
    QRectF seen; // the part that no item around it clips
    QQuickItem *item;
};

void collect(QQuickItem *item, const QRectF &seen, QList<Drawn> &texts)
{
    if (!item->isVisible() || item->opacity() == 0) {
        return;
    }
    const QRectF clipped = item->clip() ? seen & TestWindow::rect(item) : seen;
    const QString text = item->property("text").toString();
    const bool edits = item->inherits("QQuickTextInput");
    if (!text.isEmpty() && (edits || item->inherits("QQuickText"))) {
        const QRectF whole = edits ? TestWindow::rect(item) : painted(item);
        texts.append({text, whole, whole & clipped, item});
    }
    for (QQuickItem *child : item->childItems()) {
        collect(child, clipped, texts);
    }
}

/// The texts of the topmost entry.
QList<Drawn> textsOf(QQuickView &view)
{
    QList<QQuickItem *> entries = TestWindow(view).items(u"TransitionEntryView"_s);
    entries.removeIf([](QQuickItem *entry) { return entry->property("page").toBool(); });
    QList<Drawn> texts;
    collect(entries.last(), QRectF(QPointF(), view.size()), texts);
    return texts;
}

/// Whether the item is on something that a finger moves.
bool scrolls(const QQuickItem *item)
{
    while (item && !item->inherits("QQuickFlickable")) {
        item = item->parentItem();
    }
    return item;
}

QStringList complaints(QQuickView &view)
{
    const QList<Drawn> texts = textsOf(view);
    const QSize window = view.size();
    QString spoken;
    for (const QAccessibleInterface *item : TestWindow(view).accessibleItems()) {
        spoken +=
            item->text(QAccessible::Name) + u'\n' + item->text(QAccessible::Description) + u'\n';
    }
    QStringList found;
    if (texts.isEmpty()) {
        found += u"no text"_s;
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const auto &[text, whole, seen, item] = texts[i];
        const bool cut = item->property("truncated").toBool();
        if (whole.left() < margin || whole.right() > window.width() - margin) {
            found += u"at the edge: "_s + text;
        }
        if (!scrolls(item) && (whole.top() < 0 || whole.bottom() > window.height())) {
            found += u"out of the window: "_s + text;
        }
        if (item->property("contentHeight").toDouble() > item->height() + 1) {
            found += u"higher than its place: "_s + text;
        }
        if (item->property("contentWidth").toDouble() > item->width() + 1 && !item->clip()) {
            found += u"wider than its place: "_s + text;
        }
        if (cut && !spoken.contains(text)) {
            found += u"nowhere whole: "_s + text;
        }
        for (qsizetype j = 0; j < i; ++j) {
            const QRectF both = seen & texts[j].seen;
            if (both.width() > 1 && both.height() > 1) {
                found += texts[j].text + u" overlaps "_s + text;
            }
        }
    }
    return found;
}

/// The fields whose insertion mark is not to be seen beside an on-screen keyboard.
QStringList hiddenMarks(QQuickView &view)
{
    const double room = view.height() / 2.0;
    TestWindow(view).showKeyboard(room);
    QStringList found;
    for (int tabs = 0; tabs < 6; ++tabs) {
        view.grabWindow();
        QQuickItem *item = view.activeFocusItem();
        const bool edits = item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
        const QRectF mark = item->mapRectToScene(item->property("cursorRectangle").toRectF());
        if (edits && !QRectF(0, 0, view.width(), room).contains(mark)) {
            found += u"below the keyboard: "_s + item->property("text").toString();
        }
        QTest::keyClick(&view, Qt::Key_Tab);
    }
    TestWindow(view).showKeyboard(0);
    return found;
}

} // namespace

/// Rules for the texts of every screen, in every window size and text size.
class ScreenLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextHasItsPlace_data()
    {
        std::vector<Screen> screens = allScreens();
        screens.push_back({"message", false, "Login", "", "", ""});
        screens.push_back({"registration", false, "Need an Account?", "", "", ""});
        addCases(screens);
    }

    void everyTextHasItsPlace()
    {
        const Screen &screen = currentCase<Screen>();
        WZTUser user(42, u"maximiliane.featherstonehaugh-cholmondeley@correspondence.wzt.example"_s,
                     u"Maximiliane Alexandra Featherstonehaugh-Cholmondeley"_s);
        user.joinDate = NSDate{0};
        ScreenStage stage(screen, {.user = user});
        QQuickView &view = stage.view();
        for (const QSize &size : sizes) {
            for (const double textScale : textScales) {
                // All at once, as a desktop changes under an application that runs.
                stage.application().traits().setOverride(
                    DesktopAppearance{.textScale = textScale, .reduceMotion = true});
                view.resize(size);
                QTRY_COMPARE(view.contentItem()->size().toSize(), size);
                view.grabWindow();
                QStringList found = complaints(view);
                found += hiddenMarks(view);
                QVERIFY2(found.isEmpty(),
                         qPrintable(u"%1x%2 at %3: %4"_s.arg(size.width())
                                        .arg(size.height())
                                        .arg(textScale)
                                        .arg(found.join(u"; "_s))));
            }
        }
    }
};

WZT_TEST(ScreenLayoutTest)
#include "ScreenLayoutTest.moc"
