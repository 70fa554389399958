// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/TableEntries.h"

#include "platform/uikit/tables/UITableView.h"

#include <algorithm>

TableEntries::TableEntries(UITableView &table) : m_table(table) {}
TableEntries::~TableEntries() = default;

// The drawing of a row stays for the next row in its place, and the table stays scrolled as it is.
void TableEntries::reload()
{
    if (!m_loaded) {
        return;
    }
    std::vector<Section> sections = ask();
    setCount(sections);
    if (sections.size() != m_sections.size()) {
        reset([&] { m_sections = std::move(sections); });
        return;
    }
    takeBackCells(sections);
    for (std::size_t i = 0; i < sections.size(); ++i) {
        resize(i, sections[i].rows);
    }
    m_sections = std::move(sections);
    if (!m_sections.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

// Before the first of them is handed out again.
void TableEntries::takeBackCells(const std::vector<Section> &sections)
{
    for (auto &[entry, cell] : std::exchange(m_shown, {})) {
        const NSIndexPath at = *indexPathOf(entry);
        if (at.row < sections[static_cast<std::size_t>(at.section)].rows) {
            m_table.recycle(std::move(cell));
        } else {
            m_leaving.push_back(std::move(cell)); // its drawing goes later, and needs it until then
        }
    }
}

void TableEntries::resize(std::size_t section, int rows)
{
    const int before = m_sections[section].rows;
    const int end = m_sections[section].footer();
    const auto change = [&] {
        m_sections[section].rows = rows;
        for (std::size_t i = section + 1; i < m_sections.size(); ++i) {
            m_sections[i].header += rows - before;
        }
    };
    if (rows > before) {
        beginInsertRows({}, end, end + rows - before - 1);
        change();
        endInsertRows();
    } else if (rows < before) {
        beginRemoveRows({}, end - (before - rows), end - 1);
        change();
        endRemoveRows();
    }
}

void TableEntries::clear()
{
    setCount({});
    reset([this] {
        m_loaded = true;
        m_sections.clear();
    });
}

void TableEntries::reset(const std::function<void()> &change)
{
    beginResetModel();
    for (auto &[entry, cell] : std::exchange(m_shown, {})) {
        m_leaving.push_back(std::move(cell));
    }
    change();
    endResetModel(); // every drawing calls hide() here; cells that are left were not drawn
    for (auto &cell : std::exchange(m_leaving, {})) {
        m_table.recycle(std::move(cell));
    }
}

void TableEntries::load() const
{
    if (std::exchange(m_loaded, true)) {
        return;
    }
    m_sections = ask();
    m_count = countOf(m_sections);
}

std::vector<TableEntries::Section> TableEntries::ask() const
{
    std::vector<Section> sections;
    const UITableViewDataSource *source = m_table.dataSource();
    const UITableViewDelegate *delegate = m_table.delegate();
    const int count = source ? source->numberOfSections() : 0;
    int next = 0;
    for (int i = 0; i < count; ++i) {
        Section section;
        section.header = next;
        section.rows = std::max(0, source->numberOfRowsInSection(i));
        section.footerText = source->titleForFooterInSection(i).value_or(QString());
        const double height = delegate ? delegate->heightForFooterInSection(i) : 0;
        section.footerHeight = height > 0 ? height : UITableViewAutomaticDimension;
        next = section.footer() + 1;
        sections.push_back(section);
    }
    return sections;
}

const TableEntries::Section *TableEntries::sectionOf(int entry) const
{
    load();
    if (entry < 0 || m_sections.empty() || entry > m_sections.back().footer()) {
        return nullptr;
    }
    const auto after =
        std::upper_bound(m_sections.begin(), m_sections.end(), entry,
                         [](int value, const Section &section) { return value < section.header; });
    return &*std::prev(after);
}

std::optional<NSIndexPath> TableEntries::indexPathOf(int entry) const
{
    const Section *section = sectionOf(entry);
    if (!section || entry == section->header || entry == section->footer()) {
        return std::nullopt;
    }
    return NSIndexPath{static_cast<int>(section - m_sections.data()), entry - section->header - 1};
}

UITableViewCell *TableEntries::shownCell(const NSIndexPath &indexPath) const
{
    const auto section = static_cast<std::size_t>(indexPath.section);
    if (indexPath.section < 0 || section >= m_sections.size()) {
        return nullptr;
    }
    const auto shown = m_shown.find(m_sections[section].header + 1 + indexPath.row);
    return shown == m_shown.end() ? nullptr : shown->second.get();
}

void TableEntries::hide(const UITableViewCell *cell)
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
    if (shown != m_shown.end()) {
        m_table.recycle(std::move(m_shown.extract(shown).mapped()));
    }
}

int TableEntries::adjacentRow(int entry, int step) const
{
    // After a reload the table may end before the row that was current.
    for (int next = std::clamp(entry, -1, rowCount()) + step; sectionOf(next); next += step) {
        if (indexPathOf(next)) {
            return next;
        }
    }
    return -1;
}

UITableViewCell *TableEntries::cellOf(int entry) const
{
    const auto indexPath = indexPathOf(entry);
    if (!indexPath) {
        return nullptr;
    }
    const auto shown = m_shown.find(entry);
    if (shown != m_shown.end()) {
        return shown->second.get();
    }
    // The data source may do anything meanwhile, so the place is found anew.
    auto cell = m_table.cellToShow(*indexPath);
    return m_shown.insert_or_assign(entry, std::move(cell)).first->second.get();
}

double TableEntries::heightOf(int entry) const
{
    const Section &section = *sectionOf(entry);
    if (entry == section.footer()) {
        return section.footerHeight;
    }
    const auto indexPath = indexPathOf(entry);
    return indexPath && m_table.delegate() ? m_table.delegate()->heightForRowAtIndexPath(*indexPath)
                                           : UITableViewAutomaticDimension;
}

QString TableEntries::textOf(int entry) const
{
    const Section &section = *sectionOf(entry);
    return entry == section.footer() ? section.footerText : QString();
}

int TableEntries::countOf(const std::vector<Section> &sections)
{
    return sections.empty() ? 0 : sections.back().footer() + 1;
}

int TableEntries::count() const
{
    load();
    return m_count;
}

void TableEntries::setCount(const std::vector<Section> &sections)
{
    if (std::exchange(m_count, countOf(sections)) != m_count) {
        Q_EMIT countChanged();
    }
}

int TableEntries::rowCount(const QModelIndex &parent) const
{
    load();
    return parent.isValid() ? 0 : countOf(m_sections);
}

QVariant TableEntries::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
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

QHash<int, QByteArray> TableEntries::roleNames() const
{
    return {{TableRole, "table"},       {CellRole, "cell"},
            {TextRole, "text"},         {FixedHeightRole, "fixedHeight"},
            {PositionRole, "position"}, {RowsRole, "rows"}};
}
