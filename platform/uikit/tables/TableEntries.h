// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/NSIndexPath.h"

#include <QAbstractListModel>
#include <QtQmlIntegration/qqmlintegration.h>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class UITableView;
class UITableViewCell;

/// A table laid out as one list, as a model for drawing: of each section its header, its rows and
/// its footer. A cell is made when its row is first drawn, and goes back to the table when the row
/// is no longer drawn.
class TableEntries : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a table")
    /// How many entries there are. Told before a reload changes it.
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    /// `cell`: null for a header or footer. `text`: of a footer, empty for none.
    /// `fixedHeight`: in points, negative where the drawing decides. `position`: 0 for a header,
    /// 1 and up for a row, one more than `rows` for the footer. `rows`: of the section.
    enum Role {
        TableRole = Qt::UserRole,
        CellRole,
        TextRole,
        FixedHeightRole,
        PositionRole,
        RowsRole
    };

    explicit TableEntries(UITableView &table);
    ~TableEntries() override;

    /// Asks the table anew for everything. Nothing is asked before the table is drawn.
    void reload();
    /// Lets go of everything, for good.
    void clear();

    /// The row at an entry; empty for a header, for a footer and out of range.
    [[nodiscard]] std::optional<NSIndexPath> indexPathOf(int entry) const;
    /// The cell that a row is drawn with; null for a row that is not drawn.
    [[nodiscard]] UITableViewCell *shownCell(const NSIndexPath &indexPath) const;
    /// A row's drawing is gone, and with it the use of `cell`.
    void hide(const UITableViewCell *cell);

    /// The next entry after `entry`, or before it for a `step` of -1, that is a row; -1
    /// where there is none.
    [[nodiscard]] int adjacentRow(int entry, int step) const;

    [[nodiscard]] int count() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    struct Section {
        int header = 0; // the entry of the section's header
        int rows = 0;
        QString footerText;
        double footerHeight = 0;

        [[nodiscard]] int footer() const { return header + rows + 1; }
    };
    using Cells = std::unordered_map<int, std::shared_ptr<UITableViewCell>>;

    void load() const;
    [[nodiscard]] std::vector<Section> ask() const;
    void takeBackCells(const std::vector<Section> &sections);
    void resize(std::size_t section, int rows);
    [[nodiscard]] static int countOf(const std::vector<Section> &sections);
    void setCount(const std::vector<Section> &sections);
    void reset(const std::function<void()> &change);
    [[nodiscard]] const Section *sectionOf(int entry) const;
    [[nodiscard]] UITableViewCell *cellOf(int entry) const;
    [[nodiscard]] double heightOf(int entry) const;
    [[nodiscard]] QString textOf(int entry) const;

    UITableView &m_table;
    // Filled by const functions, when the table is first looked at.
    mutable std::vector<Section> m_sections;
    mutable bool m_loaded = false;
    mutable int m_count = 0;
    mutable Cells m_shown;
    // Shown before a reload, until their drawings are gone.
    std::vector<std::shared_ptr<UITableViewCell>> m_leaving;
};
