// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewController.h"

/// A cell that is counted, and counts its uses.
class SampleCell : public UITableViewCell {
    Q_OBJECT

public:
    inline static int living = 0;
    int preparations = 0;

    SampleCell(UITableViewCellStyle style, const QString &identifier)
        : UITableViewCell(style, identifier)
    {
        ++living;
    }
    ~SampleCell() override { --living; }
    void prepareForReuse() override
    {
        UITableViewCell::prepareForReuse();
        ++preparations;
    }
};

/// A table of `rows`, section by section: an image in the second row, a tall third one, a fixed
/// footer below the first section and a text below the second.
class SampleTable : public UITableViewController {
    Q_OBJECT

public:
    std::vector<int> rows;
    QString word = QStringLiteral("Row");
    std::vector<NSIndexPath> chosen;
    std::function<void()> whenChosen = [] {};
    std::function<double(const NSIndexPath &)> height = [](const NSIndexPath &at) {
        return at == NSIndexPath{0, 2} ? 70 : UITableViewAutomaticDimension;
    };
    /// Makes every row anew, if there is one.
    std::function<std::shared_ptr<UITableViewCell>()> makeRow;

    explicit SampleTable(std::vector<int> counts)
        : UITableViewController(UITableViewStyle::Grouped), rows(std::move(counts))
    {
        tableView()->registerClass<SampleCell>(QStringLiteral("sample"));
    }
    [[nodiscard]] QString text(const NSIndexPath &at) const
    {
        return QStringLiteral("%1 %2.%3").arg(word).arg(at.section).arg(at.row);
    }
    [[nodiscard]] int numberOfSections() const override { return static_cast<int>(rows.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const override
    {
        return rows.at(static_cast<std::size_t>(section));
    }
    std::shared_ptr<UITableViewCell> cellForRowAtIndexPath(const NSIndexPath &at) override
    {
        if (makeRow) {
            return makeRow();
        }
        auto cell = tableView()->dequeueReusableCellWithIdentifier(QStringLiteral("sample"));
        cell->textLabel()->setText(text(at));
        if (at == NSIndexPath{0, 1}) {
            cell->imageView()->setImage(UIImage::imageNamed(QStringLiteral("testMark")));
        }
        return cell;
    }
    [[nodiscard]] double heightForRowAtIndexPath(const NSIndexPath &at) const override
    {
        return height(at);
    }
    [[nodiscard]] double heightForFooterInSection(int section) const override
    {
        return section == 0 ? 14 : 0;
    }
    [[nodiscard]] std::optional<QString> titleForFooterInSection(int section) const override
    {
        return section == 1 ? std::optional(QStringLiteral("Below, ").repeated(20)) : std::nullopt;
    }
    void didSelectRowAtIndexPath(const NSIndexPath &at) override
    {
        chosen.push_back(at);
        whenChosen();
    }
};
