// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/fuzz/FuzzTargets.h"

#include "app/QueryString.h"
#include "platform/foundation/coding/NSKeyedArchiver.h"
#include "platform/foundation/coding/NSKeyedUnarchiver.h"
#include "platform/foundation/dates/NSDateFormatter.h"
#include "platform/foundation/http/URLOrigin.h"
#include "platform/foundation/storage/NSUserDefaults.h"
#include "platform/foundation/url/NSURLComponents.h"
#include "service/WZTAPI.h"
#include "tools/fuzz/FixedReply.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

void require(bool holds, const char *rule)
{
    if (!holds) {
        qFatal("Broken: %s", rule);
    }
}

/// Of any bytes a text, halves of surrogate pairs included.
QString utf16(const QByteArray &bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes.data(), static_cast<size_t>(text.size()) * 2);
    return text;
}

void readReply(const QByteArray &bytes)
{
    completeEveryTaskWith(bytes);
    int completions = 0;
    const auto userWith = [&](NSUInteger success) {
        return [&completions, success](NSUInteger code, const std::optional<WZTUser> &user) {
            ++completions;
            require((code == success) == user.has_value(), "one code comes with a user");
        };
    };
    const auto completed = [&](NSUInteger) { ++completions; };
    const auto issues = [&](NSUInteger code, const std::optional<QList<WZTPackageIssue>> &list) {
        ++completions;
        require((code == 1) == list.has_value(), "one code comes with issues");
        require(!list || list->size() <= bytes.size() / 2, "no issue without its braces");
    };
    const WZTAPI::Text text = u"x"_s;
    WZTAPI::loginToAccount(text, text, userWith(1));
    WZTAPI::registerEmail(text, text, text, userWith(2));
    WZTAPI::resetAccountPassword(text, completed);
    WZTAPI::updateAccount(text, text, text, text, userWith(1));
    WZTAPI::userForAccount(text, userWith(0));
    WZTAPI::issuesForPackageIdentifier(text, issues);
    WZTAPI::submitIssueForPackage(text, text, text, completed);
    require(completions == 7, "each operation completes once");
}

void readArchive(const QByteArray &bytes)
{
    const QString name = u"WZTUser"_s;
    const auto values = NSKeyedUnarchiver::unarchiveObjectWithData(bytes, name);
    if (!values) {
        return;
    }
    (void)WZTUser::initWithCoder(*values);
    const auto written = NSKeyedArchiver::archivedDataWithCoder(*values, name);
    if (!written) {
        return; // a text that no archive can hold
    }
    const auto again = NSKeyedUnarchiver::unarchiveObjectWithData(*written, name);
    require(again && NSKeyedArchiver::archivedDataWithCoder(*again, name) == written,
            "what was read is written and read again");
}

void readDefaults(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    const QString application = u"app"_s;
    const QString key = u"user"_s;
    QDir(folder.path()).mkdir(application);
    QFile file(folder.filePath(u"app/app.plist"_s));
    require(file.open(QFile::WriteOnly), "the file can be written");
    file.write(bytes);
    file.close();

    const NSUserDefaults reader(application, folder.path());
    (void)reader.dataForKey(key);
    NSUserDefaults writer(application, folder.path());
    require(writer.setObject("value", key), "a value can be stored beside anything");
    require(reader.dataForKey(key) == "value", "what is stored is read");
    require(writer.removeObjectForKey(key), "a value can be removed");
    require(!reader.dataForKey(key), "what is removed is gone");
    QDir(folder.filePath(application)).removeRecursively();
}

void makeUrl(const QByteArray &bytes)
{
    const QString text = utf16(bytes);
    NSURLComponents components;
    components.setScheme(u"https"_s);
    components.setHost(u"localhost"_s);
    components.setPath(u'/' + text);
    components.setQueryItems({NSURLQueryItem::queryItemWithName(u"name"_s, text)});
    const std::optional<QByteArray> url = components.URL();
    require(url.has_value() == text.isValidUtf16(), "every valid text makes a URL");
    if (!url) {
        return;
    }
    const QString sent = QString::fromLatin1(*url);
    require(!sent.contains(u' ') && !sent.contains(u'#'), "nothing stays that ends a URL");
    const qsizetype query = sent.indexOf(u'?') + 1;
    require(QueryString::parse(sent.sliced(query)) == QMap<QString, QString>{{u"name"_s, text}},
            "what was encoded is decoded");
}

void readQuery(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    require(QueryString::parse(text).size() <= text.count(u'='), "an item has an equals sign");
}

void readDate(const QByteArray &bytes)
{
    NSDateFormatter reader;
    reader.setDateFormat(u"yyyy-MM-dd HH:mm:ss"_s);
    const auto date = reader.dateFromString(QString::fromUtf8(bytes));
    require(!date || std::isfinite(date->timeIntervalSinceReferenceDate), "a date is a moment");
    NSDateFormatter writer;
    writer.setDateStyle(NSDateFormatterStyle::Medium);
    require(!date || !writer.stringFromDate(*date).isEmpty(), "a date can be shown");
}

void readLocation(const QByteArray &bytes)
{
    const auto origin = URLOrigin::of(bytes);
    if (!origin) {
        return;
    }
    require(!origin->host.isEmpty() && !origin->host.contains('@'), "a host is a host alone");
    QByteArray same = origin->scheme + "://" + origin->host;
    if (origin->port) {
        same += ':' + QByteArray::number(origin->port);
    }
    require(URLOrigin::of(same) == origin, "an origin is its own");
}

constexpr FuzzTarget targets[] = {
    {"reply"_L1, readReply},       {"archive"_L1, readArchive}, {"defaults"_L1, readDefaults},
    {"url"_L1, makeUrl},           {"query"_L1, readQuery},     {"date"_L1, readDate},
    {"redirect"_L1, readLocation},
};

} // namespace

std::span<const FuzzTarget> fuzzTargets()
{
    return targets;
}
