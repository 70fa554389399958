// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/home/WZTRootViewController.h"

#include "model/BuildConstants.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/base/UIApplication.h"
#include "screens/issues/WZTRootIssueViewController.h"
#include "views/UIColorEx.h"
#include "views/WZTButtonTableViewCell.h"
#include "views/WZTHeaderTableViewCell.h"
#include "views/WZTThanksTableViewCell.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Screen = WZTRootViewController;

struct Row {
    NSIndexPath place;
    QStringView image;
    QStringView text;
    void (Screen::*action)();
};

// The thanks cell has its own picture and text.
constexpr NSIndexPath thanks{2, 0};
constexpr Row rows[] = {
    {{0, 0}, u"bugreport", u"Bug Reporter", &Screen::showIssueProjectList},
    {{1, 0}, u"add", u"Add Public Repo", &Screen::addPublicRepo},
    {{1, 1}, u"add", u"Add Supporter Repo", &Screen::addSubscriberRepo},
    {{1, 2}, u"discord", u"Join Discord", &Screen::joinDiscord},
    {thanks, {}, {}, nullptr},
};

const Row *rowAt(const NSIndexPath &place)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows),
                                   [&](const Row &candidate) { return candidate.place == place; });
    return row == std::end(rows) ? nullptr : row;
}

void openLink(const char *url)
{
    UIApplication::sharedApplication()->openURL(QLatin1StringView(url));
}

void addRepository(const char *zebraURL, const char *cydiaURL)
{
    const bool hasZebra = UIApplication::sharedApplication()->canOpenURL(u"zbra://"_s);
    openLink(hasZebra ? zebraURL : cydiaURL);
}

} // namespace

WZTRootViewController::WZTRootViewController()
{
    navigationItem()->setTitle(u"Home"_s);
}

void WZTRootViewController::viewDidLoad()
{
    WZTBusyTableViewController::viewDidLoad();
    tableView()->registerClass<WZTThanksTableViewCell>(u"thanks"_s);
    tableView()->registerClass<WZTHeaderTableViewCell>(u"header"_s);
    tableView()->registerClass<WZTButtonTableViewCell>(u"button"_s);
    tableView()->registerClass<UITableViewCell>(u"root.cell"_s);
    tableView()->registerClass<UITableViewCell>(u"root.detail.cell"_s);
}

int WZTRootViewController::numberOfRowsInSection(int section) const
{
    return static_cast<int>(
        std::count_if(std::begin(rows), std::end(rows),
                      [section](const Row &row) { return row.place.section == section; }));
}

double WZTRootViewController::heightForFooterInSection(int section) const
{
    return section == 0 ? 14 : 0;
}

std::shared_ptr<UITableViewCell>
WZTRootViewController::cellForRowAtIndexPath(const NSIndexPath &indexPath)
{
    if (indexPath == thanks) {
        auto cell = tableView()->dequeueReusableCellWithIdentifier(u"thanks"_s);
        cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
        return cell;
    }
    auto cell = tableView()->dequeueReusableCellWithIdentifier(u"root.cell"_s);
    cell->imageView()->setTintColor(UIColorEx::tintColor());
    if (const Row *row = rowAt(indexPath)) {
        cell->imageView()->setImage(UIImage::imageNamed(row->image.toString()));
        cell->textLabel()->setText(row->text.toString());
    }
    return cell;
}

void WZTRootViewController::didSelectRowAtIndexPath(const NSIndexPath &indexPath)
{
    tableView()->deselectRowAtIndexPath(indexPath, true);
    const Row *row = rowAt(indexPath);
    if (row && row->action) {
        (this->*row->action)();
    }
}

void WZTRootViewController::addPublicRepo()
{
    addRepository(BuildConstants::publicRepositoryInZebra, BuildConstants::publicRepositoryInCydia);
}

void WZTRootViewController::addSubscriberRepo()
{
    addRepository(BuildConstants::supporterRepositoryInZebra,
                  BuildConstants::supporterRepositoryInCydia);
}

void WZTRootViewController::joinDiscord()
{
    openLink(BuildConstants::chatInvitationURL);
}

void WZTRootViewController::showIssueProjectList()
{
    showViewController(make<WZTRootIssueViewController>());
}
