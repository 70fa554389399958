// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/random/WindowRules.h"

#include "harness/TestRunner.h"
#include "harness/TestWindow.h"
#include "platform/uikit/input/HitTest.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "platform/uikit/presentation/UITabBarController.h"

#include <QSet>

using namespace Qt::StringLiterals;

// Records chosen rows and hands them on.
class WindowRules::Delegate : public UITableViewDelegate {
public:
    Delegate(UITableView &table, QList<Row> &chosen)
        : m_table(table), m_next(*table.delegate()), m_chosen(chosen)
    {
        table.setDelegate(this);
    }
    [[nodiscard]] double heightForRowAtIndexPath(const NSIndexPath &at) const override
    {
        return m_next.heightForRowAtIndexPath(at);
    }
    [[nodiscard]] double heightForFooterInSection(int section) const override
    {
        return m_next.heightForFooterInSection(section);
    }
    void didSelectRowAtIndexPath(const NSIndexPath &at) override
    {
        m_chosen.append({&m_table, at});
        m_next.didSelectRowAtIndexPath(at);
    }

private:
    UITableView &m_table;
    UITableViewDelegate &m_next;
    QList<Row> &m_chosen;
};

namespace {

using Controllers = std::vector<std::shared_ptr<UIViewController>>;

int pagesIn(UIViewController &controller)
{
    if (const auto *navigation = qobject_cast<UINavigationController *>(&controller)) {
        return static_cast<int>(navigation->viewControllers().size());
    }
    const auto *tabs = qobject_cast<UITabBarController *>(&controller);
    int pages = tabs ? 0 : 1;
    for (const auto &tab : tabs ? tabs->viewControllers() : Controllers()) {
        pages += pagesIn(*tab);
    }
    return pages;
}

bool isInPlace(const QQuickItem *entry)
{
    return entry->property("presence").toDouble() == 1 && entry->position().isNull();
}

double number(const QQuickItem &item, const char *name)
{
    return item.property(name).toDouble();
}

bool isInBounds(const QQuickItem &list)
{
    const double top = number(list, "originY") - number(list, "topMargin");
    const double end =
        number(list, "originY") + number(list, "contentHeight") + number(list, "bottomMargin");
    const double y = number(list, "contentY");
    return y > top - 1 && y < qMax(top, end - list.height()) + 1;
}

} // namespace

UITableView *WindowRules::tableOf(const QQuickItem &list)
{
    return list.parentItem()->property("control").value<UITableView *>();
}

WindowRules::WindowRules(QQuickView &window, TransitionStack &presentation)
    : m_window(window), m_presentation(presentation)
{
}

WindowRules::~WindowRules() = default;

QList<QQuickItem *> WindowRules::items(const char *type) const
{
    QList<QQuickItem *> found = TestWindow(m_window).items(QLatin1String(type));
    found.removeIf([](const QQuickItem *item) { return !item->isVisible(); });
    return found;
}

WindowRules::Row WindowRules::rowAt(const QPoint &point) const
{
    const QQuickItem *hit = HitTest::itemAt(m_window.contentItem(), point);
    const QQuickItem *row = hit ? hit->parentItem() : nullptr;
    const auto *entry = row ? row->property("entry").value<QQuickItem *>() : nullptr;
    auto *table = entry ? entry->property("table").value<UITableView *>() : nullptr;
    if (!table || !hit->inherits("PressArea")) {
        return {};
    }
    return {table, table->entries()->indexPathOf(entry->property("index").toInt())};
}

QQuickItem *WindowRules::list() const
{
    const QList<QQuickItem *> all = items("QQuickListView");
    const auto enabled = std::ranges::find_if(all, &QQuickItem::isEnabled);
    return enabled == all.end() ? nullptr : *enabled;
}

bool WindowRules::isStill() const
{
    return std::ranges::all_of(items("TransitionEntryView"), isInPlace)
        && items("EditMenu").isEmpty() && (!list() || !list()->property("moving").toBool());
}

void WindowRules::observeTables()
{
    for (const QQuickItem *list : items("QQuickListView")) {
        auto *table = tableOf(*list);
        if (table->delegate() && !dynamic_cast<Delegate *>(table->delegate())) {
            m_delegates.push_back(std::make_unique<Delegate>(*table, m_chosen));
        }
    }
}

int WindowRules::pageCount() const
{
    int pages = 0;
    for (const auto &controller : m_presentation.controllers()) {
        if (controller->cover() == TransitionStack::Cover::Covers) {
            pages += pagesIn(*controller);
        }
    }
    return pages;
}

void WindowRules::begin()
{
    observeTables();
    m_chosen.clear();
    m_pages = pageCount();
}

QString WindowRules::acted(QList<Row> mayBeChosen, int pages)
{
    for (const Row &row : m_chosen) {
        if (!mayBeChosen.removeOne(row)) {
            return u"a row acts that was not touched"_s;
        }
    }
    return pageCount() > m_pages + pages ? u"more pages come than were asked for"_s : QString();
}

QString WindowRules::tables() const
{
    QSet<QObject *> cells;
    for (const QQuickItem *entry : items("TableEntryView")) {
        auto *cell = entry->property("cell").value<UITableViewCell *>();
        if (!cell) {
            continue;
        }
        if (cells.contains(cell)) {
            return u"a cell is drawn twice"_s;
        }
        if (cell->isHighlighted()) {
            return u"a row is lit that no finger is on"_s;
        }
        cells.insert(cell);
    }
    const auto areListsInBounds = [this] {
        return std::ranges::all_of(items("QQuickListView"), [](const QQuickItem *list) {
            return list->property("moving").toBool() || isInBounds(*list);
        });
    };
    return QTest::qWaitFor(areListsInBounds, TestRunner::patience)
        ? QString()
        : u"a list rests out of its bounds"_s;
}

QString WindowRules::focus() const
{
    const QQuickItem *focused = m_window.activeFocusItem();
    if (!focused || !focused->isVisible() || !focused->isEnabled()) {
        return u"the keyboard is with nothing that is seen"_s;
    }
    const QRectF mark = focused->property("cursorRectangle").toRectF();
    const bool inSight = mark.isEmpty() || (mark.left() > -1 && mark.left() < focused->width() + 1);
    return inSight ? QString() : u"the insertion mark is out of sight"_s;
}

QString WindowRules::settled() const
{
    const auto arePagesInPlace = [this] {
        return std::ranges::all_of(items("TransitionEntryView"), isInPlace);
    };
    if (!QTest::qWaitFor(arePagesInPlace, TestRunner::patience)) {
        return u"a page rests beside its place"_s;
    }
    const auto shown = m_presentation.controllers();
    for (const auto &controller : shown) {
        const bool covered = std::any_of(
            std::find(shown.begin(), shown.end(), controller) + 1, shown.end(),
            [](const auto &above) { return above->cover() == TransitionStack::Cover::Covers; });
        if (controller->appearanceState()
            != (covered ? AppearanceState::Disappeared : AppearanceState::Appeared)) {
            return u"a controller has not appeared, or not gone"_s;
        }
    }
    const QString fault = tables();
    return fault.isEmpty() ? focus() : fault;
}
