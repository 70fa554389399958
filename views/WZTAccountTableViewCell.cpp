// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/WZTAccountTableViewCell.h"

#include "model/WZTSession.h"
#include "platform/foundation/dates/NSDateFormatter.h"
#include "views/AdaptiveColors.h"
#include "views/CardStyle.h"
#include "views/UIColorEx.h"

using namespace Qt::StringLiterals;

namespace {

void setUp(UILabel &label, UIFontTextStyle style, const UIColor &color, const QString &text = {})
{
    label.setFont(UIFont::preferredFontForTextStyle(style));
    label.setTextColor(color);
    label.setText(text);
}

// The caption follows its value, so for screen readers the value says both.
void fillValue(UILabel &value, const UILabel &caption, const std::optional<QString> &text)
{
    value.setText(text.value_or(QString()));
    value.setAccessibilityLabel(u"%1: %2"_s.arg(caption.text(), value.text()));
}

QString joinLine(int number, const std::optional<NSDate> &date)
{
    NSDateFormatter formatter;
    formatter.setDateStyle(NSDateFormatterStyle::Medium);
    const QString day = date ? formatter.stringFromDate(*date) : QString();
    return u"#%1 Joined %2"_s.arg(QString::number(number), day.isEmpty() ? u"(null)"_s : day);
}

} // namespace

WZTAccountTableViewCell::WZTAccountTableViewCell(UITableViewCellStyle style,
                                                 const QString &reuseIdentifier)
    : UITableViewCell(style, reuseIdentifier)
{
    contentView()->setBackgroundColor(UIColor::clearColor());
    setBackgroundColor(UIColor::clearColor());
    styleCard(m_cardBackgroundView, 12.333);

    setUp(m_headerLabel, UIFontTextStyle::Title2, AdaptiveColors::text(), u"Account Details"_s);
    m_editButton.setTitle(u"Update"_s);
    m_editButton.setTitleColor(UIColorEx::tintColor());
    m_dividerOneView.setBackgroundColor(AdaptiveColors::line());
    for (UIView *underline : {&m_dividerTwoView, &m_dividerThreeView}) {
        underline->setBackgroundColor(AdaptiveColors::line());
        underline->setLayer({.cornerRadius = 0.5, .masksToBounds = true});
    }

    setUp(m_userNameLabel, UIFontTextStyle::Body, AdaptiveColors::text());
    setUp(m_userNameTitleLabel, UIFontTextStyle::Footnote, AdaptiveColors::caption(), u"Name"_s);
    setUp(m_emailLabel, UIFontTextStyle::Body, AdaptiveColors::text());
    setUp(m_emailTitleLabel, UIFontTextStyle::Footnote, AdaptiveColors::caption(), u"Email"_s);
    setUp(m_userSinceLabel, UIFontTextStyle::Footnote, AdaptiveColors::caption());
    fill();
}

WZTAccountTableViewCell::~WZTAccountTableViewCell() = default;

void WZTAccountTableViewCell::fill()
{
    const std::optional<WZTUser> &user = WZTSession::shared()->currentUser();
    fillValue(m_userNameLabel, m_userNameTitleLabel, user ? user->userName : std::nullopt);
    fillValue(m_emailLabel, m_emailTitleLabel, user ? user->email : std::nullopt);
    m_userSinceLabel.setText(
        joinLine(user ? user->tavloId : 0, user ? user->joinDate : std::nullopt));
}

void WZTAccountTableViewCell::prepareForReuse()
{
    UITableViewCell::prepareForReuse();
    fill();
    m_editButton.removeTarget(nullptr, UIControlEvent::TouchUpInside);
}
