// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "platform/uikit/base/Make.h"
#include "screens/account/WZTUserViewController.h"
#include "service/TavloCategoryExtension.h"
#include "views/WZTAccountTableViewCell.h"

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;
using namespace std::chrono_literals;

constexpr char another[] = R"({"userTavloID":1,"userEmail":"jo@wzt.example","userName":"New"})";
const QString updated = u"Great!|Account successfully updated.|(Dismiss)"_s;

// Jo is signed in and looks at the Account tab.
struct AccountStage : TestApp {
    AccountStage()
    {
        launchSignedIn();
        delegate().tabController()->setSelectedIndex(1);
        screen().loadViewIfNeeded();
    }

    [[nodiscard]] WZTUserViewController &screen() { return *delegate().userVC(); }
    /// Fills the update alert with "name|new password|current password", "-" for an absent text,
    /// and sends it off.
    void update(const QString &texts)
    {
        screen().editProfile(nullptr);
        const auto alert = strong(top<UIAlertController>());
        for (std::size_t i = 0; i < alert->textFields().size(); ++i) {
            const QString text = texts.section(u'|', static_cast<int>(i), static_cast<int>(i));
            alert->textFields()[i]->setText(text == u"-" ? std::nullopt : std::optional(text));
        }
        alert->trigger(alert->actions()[1].get());
        for (const std::size_t secret : {1U, 2U}) {
            QCOMPARE(alert->textFields()[secret]->text(), QString());
        }
    }
    [[nodiscard]] QString name() { return delegate().currentUser()->userName.value_or(u"-"_s); }
    [[nodiscard]] UIRefreshControl &refreshControl()
    {
        return *screen().tableView()->refreshControl();
    }
};

// Texts, the reply (the service's own if empty), what is sent after the address, and the alert.
using Update = std::tuple<const char *, QString, QByteArray, QString, QString>;
// A reply to an update or a refresh, who is signed in when it comes, and the alert.
using LateReply = std::tuple<const char *, bool, QString, QString>;

} // namespace

/// The Account screen's flows, from a touch to the service and back.
class AccountTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refreshes()
    {
        for (const auto &[reply, shown] : {std::pair(Fault::delay(100ms), u"Joanna"_s),
                                           {Fault::json(R"({"result":"No User"})"), u"Jo"_s},
                                           {Fault::reset(), u"Jo"_s}}) {
            AccountStage stage;
            stage.service().updateAccount(
                {.number = 1, .email = u"jo@wzt.example"_s, .name = u"Joanna"_s});
            stage.service().stage("/user.php", reply);
            stage.refreshControl().pull();
            stage.refreshControl().pull(); // under way already
            QVERIFY(stage.refreshControl().isRefreshing());
            QTRY_VERIFY(!stage.refreshControl().isRefreshing());
            QCOMPARE(stage.service().requests().size(), 1);
            QCOMPARE(stage.name(), shown);
            const auto card = stage.screen().cellForRowAtIndexPath({1, 0});
            QCOMPARE(dynamic_cast<WZTAccountTableViewCell &>(*card).userNameLabel()->text(), shown);
            QCOMPARE(stage.alert(), QString());
            QCOMPARE(stage.host().taps, 0);
        }
    }

    void updates_data()
    {
        const QString error = u"Error|%1|(Dismiss)"_s;
        const QString old = u"&userOldPassword="_s + SHA256(u"secret"_s);
        const QString empty = u"&userOldPassword="_s + SHA256({});
        const QString renamed = old + u"&userName=%20New%20"_s;
        const QString changed = u"&userNewPassword="_s + SHA256(u" new "_s);
        addCases<Update>({
            {"no current password", u"New|new|-"_s, "", u""_s,
             error.arg(u"Enter your password to confirm changes."_s)},
            {"nothing to change", u"-||"_s, "", u""_s,
             error.arg(u"Enter changes to update account."_s)},
            {"a name", u" New ||secret"_s, another, renamed, updated},
            {"a password", u"| new |secret"_s, "", old + changed, updated},
            {"an empty current password", u"-| new |"_s, "", empty + changed,
             error.arg(u"Entered password did not match this account"_s)},
        });
    }

    void updates()
    {
        const auto &[name, texts, reply, sent, alert] = currentCase<Update>();
        AccountStage stage;
        if (!reply.isEmpty()) {
            stage.service().stage("/update.php", Fault::json(reply));
        }
        stage.update(texts);
        QTRY_COMPARE(stage.alert(), alert);
        QCOMPARE(stage.name(), reply == another ? u"New"_s : u"Jo"_s);
        const auto requests = stage.service().requests();
        QCOMPARE(requests.size(), sent.isEmpty() ? 0 : 1);
        if (!requests.isEmpty()) {
            QCOMPARE(requests[0].target,
                     "/update.php?userEmail=jo%40wzt.example" + sent.toLatin1());
        }
    }

    /// A reply comes when nobody, or somebody else, is signed in.
    void signingOutHolds_data()
    {
        addCases<LateReply>({
            {"refresh, nobody", false, {}, {}},
            {"refresh, somebody else", false, u"kim@wzt.example"_s, {}},
            {"update, nobody", true, {}, {}},
            {"update, somebody else", true, u"kim@wzt.example"_s, {}},
            {"update, the same again", true, u"jo@wzt.example"_s, updated},
        });
    }

    void signingOutHolds()
    {
        const auto &[name, updates, next, alert] = currentCase<LateReply>();
        AccountStage stage;
        const std::weak_ptr screen = strong(&stage.screen());
        const auto holders = screen.use_count();
        stage.service().stage(updates ? "/update.php" : "/user.php",
                              Fault::json(another).after(100ms));
        updates ? stage.update(u"New||secret"_s) : stage.refreshControl().pull();
        stage.screen().logout(nullptr);
        if (!next.isEmpty()) {
            stage.delegate().setCurrentUser(WZTUser(1, next, u"Kim"_s));
        }
        // The late reply has come once it no longer keeps the screen or its spinner.
        QTRY_COMPARE(screen.use_count(), holders);
        QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        QCOMPARE(stage.alert(), alert);
        QCOMPARE(stage.delegate().currentUser().has_value(), !next.isEmpty());
        if (!next.isEmpty()) {
            QCOMPARE(stage.name(), next == u"jo@wzt.example" ? u"New"_s : u"Kim"_s);
        }
    }
};

WZT_TEST(AccountTest)
#include "AccountTest.moc"
