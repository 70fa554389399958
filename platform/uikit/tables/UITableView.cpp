// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/UITableView.h"

#include <utility>

namespace {
// Enough for every row of a tall screen at a reload.
constexpr std::size_t pooledCells = 64;
} // namespace

UITableView::UITableView(UITableViewStyle) : m_entries(*this)
{
    setBackgroundColor(UIColor::systemGroupedBackgroundColor());
}

UITableView::~UITableView()
{
    m_dataSource = nullptr;
    m_delegate = nullptr;
    m_entries.clear();
}

bool UITableView::drawsSeparators() const
{
    return m_separatorStyle == UITableViewCellSeparatorStyle::SingleLine;
}

void UITableView::setDataSource(UITableViewDataSource *dataSource)
{
    m_dataSource = dataSource;
    reloadData();
}

void UITableView::setRefreshControl(std::shared_ptr<UIRefreshControl> control)
{
    m_refreshControl = std::move(control);
    Q_EMIT changed();
}

void UITableView::reloadData()
{
    m_selected.reset();
    m_entries.reload();
    Q_EMIT reloaded();
}

void UITableView::deselectRowAtIndexPath(const NSIndexPath &indexPath, bool animated)
{
    if (m_selected != indexPath) {
        return;
    }
    m_selected.reset();
    if (UITableViewCell *cell = m_entries.shownCell(indexPath)) {
        cell->setSelected(false, animated);
    }
}

void UITableView::activateRow(const NSIndexPath &indexPath)
{
    if (m_selected && m_selected != indexPath) {
        deselectRowAtIndexPath(*m_selected, false);
    }
    m_selected = indexPath;
    if (UITableViewCell *cell = m_entries.shownCell(indexPath)) {
        cell->setSelected(true, false);
    }
    if (m_delegate) {
        m_delegate->didSelectRowAtIndexPath(indexPath);
    }
}

void UITableView::activateEntry(int entry)
{
    if (const auto indexPath = m_entries.indexPathOf(entry)) {
        activateRow(*indexPath);
    }
}

void UITableView::cellHidden(UITableViewCell *cell)
{
    m_entries.hide(cell);
}

std::shared_ptr<UITableViewCell> UITableView::cellToShow(const NSIndexPath &indexPath)
{
    auto cell = m_dataSource->cellForRowAtIndexPath(indexPath);
    if (!cell) {
        cell = make<UITableViewCell>();
    }
    addSubview(*cell);
    cell->setSelected(m_selected == indexPath, false);
    return cell;
}

void UITableView::recycle(std::shared_ptr<UITableViewCell> cell)
{
    const auto pooled = m_pool.find(cell->reuseIdentifier());
    if (pooled != m_pool.end() && pooled->second.size() < pooledCells) {
        pooled->second.push_back(std::move(cell));
        return;
    }
    // The drawing of the cell goes by a deferred delete that is still to be posted.
    auto release = [cell = std::move(cell)] {};
    QMetaObject::invokeMethod(this, std::move(release), Qt::QueuedConnection);
}

std::shared_ptr<UITableViewCell> UITableView::dequeue(const QString &identifier)
{
    auto &pooled = m_pool[identifier];
    if (!pooled.empty()) {
        const auto cell = std::move(pooled.back());
        pooled.pop_back();
        cell->prepareForReuse();
        return cell;
    }
    const auto factory = m_factories.find(identifier);
    return factory == m_factories.end() ? nullptr : factory->second();
}
