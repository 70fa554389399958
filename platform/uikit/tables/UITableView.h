// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Make.h"
#include "platform/uikit/tables/TableEntries.h"
#include "platform/uikit/tables/UIRefreshControl.h"
#include "platform/uikit/tables/UITableViewCell.h"
#include "platform/uikit/tables/UITableViewDataSource.h"
#include "platform/uikit/tables/UITableViewDelegate.h"

#include <functional>
#include <map>

/// `Grouped`: sections from edge to edge, apart from each other.
enum class UITableViewStyle { Grouped = 1 };
enum class UITableViewCellSeparatorStyle { None, SingleLine };

/// Rows in sections. Cells are made by class and reused from row to row.
class UITableView : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to its controller")
    Q_PROPERTY(TableEntries *entries READ entries CONSTANT FINAL)
    Q_PROPERTY(bool drawsSeparators READ drawsSeparators NOTIFY changed FINAL)
    Q_PROPERTY(UIRefreshControl *refreshControl READ refreshControl NOTIFY changed FINAL)

public:
    /// The style decides nothing: there is one drawing.
    explicit UITableView(UITableViewStyle style);
    ~UITableView() override;

    void setSeparatorStyle(UITableViewCellSeparatorStyle style) { assign(m_separatorStyle, style); }
    [[nodiscard]] bool drawsSeparators() const;

    /// Both outlive the table's use of them; null for an empty table.
    void setDataSource(UITableViewDataSource *dataSource);
    [[nodiscard]] UITableViewDataSource *dataSource() const { return m_dataSource; }
    void setDelegate(UITableViewDelegate *delegate) { m_delegate = delegate; }
    [[nodiscard]] UITableViewDelegate *delegate() const { return m_delegate; }

    /// Pulling the table down refreshes it, once it has a control for that; null for none.
    void setRefreshControl(std::shared_ptr<UIRefreshControl> control);
    [[nodiscard]] UIRefreshControl *refreshControl() const { return m_refreshControl.get(); }

    /// Cells asked for by `reuseIdentifier` are of the class `Cell` from now on.
    template <typename Cell>
    void registerClass(const QString &reuseIdentifier)
    {
        m_factories[reuseIdentifier] = [reuseIdentifier]() -> std::shared_ptr<UITableViewCell> {
            return make<Cell>(UITableViewCellStyle::Default, reuseIdentifier);
        };
    }

    /// A cell that left the screen, prepared for reuse, or else a new one of the registered class;
    /// null when nothing is registered, or when the cell is no `Cell`.
    template <typename Cell = UITableViewCell>
    [[nodiscard]] std::shared_ptr<Cell> dequeueReusableCellWithIdentifier(const QString &identifier)
    {
        return std::dynamic_pointer_cast<Cell>(dequeue(identifier));
    }

    /// Asks the data source for everything anew and drops the selection. May be called at any time,
    /// from a cell's own action too; nothing is asked before the table is drawn.
    void reloadData();

    /// The row that the user chose last, while it is selected.
    [[nodiscard]] std::optional<NSIndexPath> indexPathForSelectedRow() const { return m_selected; }
    /// Nothing happens to a row that is not selected.
    void deselectRowAtIndexPath(const NSIndexPath &indexPath, bool animated);

    /// Acts as a tap on a row: selects it, and tells the delegate.
    void activateRow(const NSIndexPath &indexPath);

    // For the drawing of the table.
    [[nodiscard]] TableEntries *entries() { return &m_entries; }
    Q_INVOKABLE void activateEntry(int entry);
    Q_INVOKABLE void cellHidden(UITableViewCell *cell);

    /// The cell for a row that comes on screen.
    [[nodiscard]] std::shared_ptr<UITableViewCell> cellToShow(const NSIndexPath &indexPath);
    /// Takes back a cell whose row has left the screen.
    void recycle(std::shared_ptr<UITableViewCell> cell);

Q_SIGNALS:
    void reloaded();

private:
    using Factory = std::function<std::shared_ptr<UITableViewCell>()>;

    [[nodiscard]] std::shared_ptr<UITableViewCell> dequeue(const QString &identifier);

    UITableViewCellSeparatorStyle m_separatorStyle = UITableViewCellSeparatorStyle::SingleLine;
    UITableViewDataSource *m_dataSource = nullptr;
    UITableViewDelegate *m_delegate = nullptr;
    std::map<QString, Factory> m_factories;
    // By identifier; there is a pool for those that were asked for.
    std::map<QString, std::vector<std::shared_ptr<UITableViewCell>>> m_pool;
    std::optional<NSIndexPath> m_selected;
    std::shared_ptr<UIRefreshControl> m_refreshControl;
    TableEntries m_entries;
};
