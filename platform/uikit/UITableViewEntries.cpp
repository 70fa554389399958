// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UITableViewEntries.h"

#include "platform/uikit/UITableView.h"

#include <algorithm>

UITableViewEntries::UITableViewEntries(UITableView &table) : m_table(table) {}
UITableViewEntries::~UITableViewEntries() = default;

void UITableViewEntries::reload()
{
    if (!m_loaded)
        return;
    reset([this] {
        m_loaded = false;
        load();
    });
}

void UITableViewEntries::clear()
{
    reset([this] {
        m_loaded = true;
        m_sections.clear();
    });
}

void UITableViewEntries::reset(const std::function<void()> &change)
{
    beginResetModel();
    for (auto &[entry, cell] : std::exchange(m_shown, {}))
        m_leaving.push_back(std::move(cell));
    change();
    endResetModel(); // every drawing says here that it goes; what is left was not drawn
    for (auto &cell : std::exchange(m_leaving, {}))
        m_table.recycle(std::move(cell));
}

void UITableViewEntries::load() const
{
    if (std::exchange(m_loaded, true))
        return;
    m_sections.clear();
    const UITableViewDataSource *source = m_table.dataSource();
    const UITableViewDelegate *delegate = m_table.delegate();
    const int count = source ? source->numberOfSections() : 0;
    int next = 0;
    for (int i = 0; i < count; ++i) {
        Section section;
        section.header = next;
        section.rows = std::max(0, source->numberOfRowsInSection(i));
        section.headerText = source->titleForHeaderInSection(i).value_or(QString());
        section.footerText = source->titleForFooterInSection(i).value_or(QString());
        const double height = delegate ? delegate->heightForFooterInSection(i) : 0;
        section.footerHeight = height > 0 ? height : UITableViewAutomaticDimension;
        next = section.footer() + 1;
        m_sections.push_back(section);
    }
}

const UITableViewEntries::Section *UITableViewEntries::sectionOf(int entry) const
{
    load();
    if (entry < 0 || m_sections.empty() || entry > m_sections.back().footer())
        return nullptr;
    const auto after =
        std::upper_bound(m_sections.begin(), m_sections.end(), entry,
                         [](int value, const Section &section) { return value < section.header; });
    return &*std::prev(after);
}

std::optional<NSIndexPath> UITableViewEntries::indexPathOf(int entry) const
{
    const Section *section = sectionOf(entry);
    if (!section || entry == section->header || entry == section->footer())
        return std::nullopt;
    return NSIndexPath{static_cast<int>(section - m_sections.data()), entry - section->header - 1};
}

UITableViewCell *UITableViewEntries::shownCell(const NSIndexPath &indexPath) const
{
    const auto section = static_cast<std::size_t>(indexPath.section);
    if (indexPath.section < 0 || section >= m_sections.size())
        return nullptr;
    const auto shown = m_shown.find(m_sections[section].header + 1 + indexPath.row);
    return shown == m_shown.end() ? nullptr : shown->second.get();
}

void UITableViewEntries::hide(const UITableViewCell *cell)
{
    const auto left = std::find_if(m_leaving.begin(), m_leaving.end(),
                                   [&](const auto &leaving) { return leaving.get() == cell; });
    if (left != m_leaving.end()) {
        auto taken = std::move(*left);
        m_leaving.erase(left);
        m_table.recycle(std::move(taken));
        return;
    }
    const auto shown = std::find_if(m_shown.begin(), m_shown.end(),
                                    [&](const auto &entry) { return entry.second.get() == cell; });
    if (shown != m_shown.end())
        m_table.recycle(std::move(m_shown.extract(shown).mapped()));
}

int UITableViewEntries::rowBeside(int entry, int step) const
{
    // After a reload the table may end before what was the current row.
    for (int next = std::clamp(entry, -1, rowCount()) + step; sectionOf(next); next += step) {
        if (indexPathOf(next))
            return next;
    }
    return -1;
}

UITableViewCell *UITableViewEntries::cellOf(int entry) const
{
    const auto indexPath = indexPathOf(entry);
    if (!indexPath)
        return nullptr;
    const auto shown = m_shown.find(entry);
    if (shown != m_shown.end())
        return shown->second.get();
    // The data source may do anything meanwhile, so the place is found anew.
    auto cell = m_table.cellToShow(*indexPath);
    return m_shown.insert_or_assign(entry, std::move(cell)).first->second.get();
}

double UITableViewEntries::heightOf(int entry) const
{
    const Section &section = *sectionOf(entry);
    if (entry == section.footer())
        return section.footerHeight;
    const auto indexPath = indexPathOf(entry);
    return indexPath && m_table.delegate() ? m_table.delegate()->heightForRowAtIndexPath(*indexPath)
                                           : UITableViewAutomaticDimension;
}

QString UITableViewEntries::textOf(int entry) const
{
    const Section &section = *sectionOf(entry);
    if (entry == section.header)
        return section.headerText;
    return entry == section.footer() ? section.footerText : QString();
}

int UITableViewEntries::rowCount(const QModelIndex &parent) const
{
    load();
    return parent.isValid() || m_sections.empty() ? 0 : m_sections.back().footer() + 1;
}

QVariant UITableViewEntries::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int entry = index.row();
    switch (role) {
    case TableRole:
        return QVariant::fromValue(&m_table);
    case CellRole:
        return QVariant::fromValue(cellOf(entry));
    case TextRole:
        return textOf(entry);
    case FixedHeightRole:
        return heightOf(entry);
    case PositionRole:
        return entry - sectionOf(entry)->header;
    case RowsRole:
        return sectionOf(entry)->rows;
    default:
        return {};
    }
}

QHash<int, QByteArray> UITableViewEntries::roleNames() const
{
    return {{TableRole, "table"},       {CellRole, "cell"},
            {TextRole, "text"},         {FixedHeightRole, "fixedHeight"},
            {PositionRole, "position"}, {RowsRole, "rows"}};
}
