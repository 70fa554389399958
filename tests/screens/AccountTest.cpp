// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"
#include "platform/uikit/UIAlertController.h"
#include "platform/uikit/UINavigationItem.h"
#include "screens/WZTLoginViewController.h"
#include "screens/WZTUserViewController.h"
#include "service/TavloCategoryExtension.h"
#include "tests/support/TestApp.h"
#include "tests/support/TestRunner.h"
#include "views/WZTAccountTableViewCell.h"
#include "views/WZTButtonTableViewCell.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using sandbox::Fault;
using Texts = std::array<std::optional<QString>, 3>;

constexpr char another[] = R"({"userTavloID":1,"userEmail":"jo@wzt.example","userName":"New"})";

// Jo is signed in and looks at the Account tab.
struct Stage {
    Stage()
    {
        const auto account =
            app.service().addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
        app.keepUser(WZTUser(static_cast<int>(account->number), account->email, account->name));
        app.launch();
        app.delegate().tabController()->setSelectedIndex(1);
        screen().loadViewIfNeeded();
    }

    [[nodiscard]] WZTUserViewController &screen() { return *app.delegate().userVC(); }
    template <class Cell = UITableViewCell>
    [[nodiscard]] std::shared_ptr<Cell> cell(int section)
    {
        return std::dynamic_pointer_cast<Cell>(screen().cellForRowAtIndexPath({section, 0}));
    }
    void edit() { cell<WZTAccountTableViewCell>(1)->editButton()->activate(); }
    /// Fills the update alert, an absent text as one, and sends it off.
    void update(const Texts &texts)
    {
        edit();
        auto *alert = app.top<UIAlertController>();
        for (std::size_t i = 0; i < texts.size(); ++i)
            alert->textFields()[i]->setText(texts[i]);
        alert->trigger(alert->actions()[1].get());
    }
    [[nodiscard]] QStringList alert()
    {
        const auto *shown = app.top<UIAlertController>();
        return shown ? QStringList{shown->title(), shown->message()} : QStringList();
    }
    [[nodiscard]] QString name() { return app.delegate().currentUser()->userName.value_or(u"-"_s); }
    [[nodiscard]] UIRefreshControl &refreshControl()
    {
        return *screen().tableView()->refreshControl();
    }

    TestApp app;
};

} // namespace

/// The Account screen's flows, from a touch to the service and back.
class AccountTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table()
    {
        Stage stage;
        WZTUserViewController &screen = stage.screen();
        QCOMPARE(screen.navigationItem()->title(), u"Account"_s);
        QCOMPARE(screen.numberOfSections(), 3);
        QVERIFY(!screen.tableView()->drawsSeparators());
        const char16_t *identifiers[] = {u"header", u"account", u"button"};
        const double footers[] = {14, 0, 0};
        for (int section = 0; section < 3; ++section) {
            QCOMPARE(screen.numberOfRowsInSection(section), 1);
            QCOMPARE(screen.heightForRowAtIndexPath({section, 0}), UITableViewAutomaticDimension);
            QCOMPARE(screen.heightForFooterInSection(section), footers[section]);
            QCOMPARE(stage.cell(section)->reuseIdentifier(),
                     QString::fromUtf16(identifiers[section]));
            QCOMPARE(stage.cell(section)->selectionStyle(), UITableViewCellSelectionStyle::None);
        }
        const auto button = stage.cell<WZTButtonTableViewCell>(2);
        QCOMPARE(button->button()->title(), u"Logout"_s);
        QVERIFY(button->button()->buttonColor() == UIColor::redColor());
    }

    void targetsDoNotPileUp()
    {
        Stage stage;
        UITableViewEntries &entries = *stage.screen().tableView()->entries();
        const auto shown = [&](int entry) {
            return entries.index(entry)
                .data(UITableViewEntries::CellRole)
                .value<UITableViewCell *>();
        };
        for (int i = 0; i < 10; ++i) {
            for (const int entry : {1, 4, 7})
                QVERIFY(shown(entry));
            stage.screen().tableView()->reloadData();
        }
        qobject_cast<WZTAccountTableViewCell *>(shown(4))->editButton()->activate();
        QCOMPARE(stage.app.delegate().window()->presentation()->rowCount(), 2);
        QCOMPARE(stage.app.host().taps, 1);
        stage.app.top<UIAlertController>()->triggerCancel();
        qobject_cast<WZTButtonTableViewCell *>(shown(7))->button()->activate();
        QVERIFY(!stage.app.delegate().currentUser());
        QVERIFY(!stage.app.keptData());
        QVERIFY(stage.app.top<WZTLoginViewController>());
        QCOMPARE(stage.app.delegate().tabController()->selectedIndex(), 0);
        QCOMPARE(stage.app.delegate().window()->presentation()->rowCount(), 2);
        QCOMPARE(stage.app.host().taps, 2);
    }

    void refreshes_data()
    {
        QTest::addColumn<std::optional<Fault>>("fault");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, const std::optional<Fault> &fault,
                            const char16_t *shown = u"Jo") {
            QTest::newRow(name) << fault << QString::fromUtf16(shown);
        };
        row("as the service has it", std::nullopt, u"Joanna");
        row("slowly", Fault::delay(std::chrono::milliseconds(150)), u"Joanna");
        row("no such user", Fault::json(R"({"result":"No User"})"));
        row("a list", Fault::json("[]"));
        row("no JSON", Fault::json("<html>"));
        row("no answer", Fault::close());
        row("half an answer", Fault::reset());
    }

    void refreshes()
    {
        QFETCH(const std::optional<Fault>, fault);
        Stage stage;
        stage.app.service().updateAccount(
            {.number = 1, .email = u"jo@wzt.example"_s, .name = u"Joanna"_s});
        if (fault)
            stage.app.service().stage("/user.php", *fault);
        stage.refreshControl().pull();
        stage.refreshControl().pull(); // under way already
        QVERIFY(stage.refreshControl().isRefreshing());
        QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        QCOMPARE(stage.app.service().requests().size(), 1);
        QTEST(stage.name(), "name");
        QTEST(stage.cell<WZTAccountTableViewCell>(1)->userNameLabel()->text(), "name");
        QCOMPARE(stage.alert(), QStringList());
        QCOMPARE(stage.app.host().taps, 0);
    }

    void theUpdateAlert()
    {
        using Correction = UITextAutocorrectionType;
        using Content = UITextContentType;
        for (const double version : {11.0, 12.0}) {
            Stage stage;
            stage.app.application().traits().setSystemVersion(version);
            stage.edit();
            QCOMPARE(stage.app.host().taps, 1);
            QCOMPARE(stage.alert(), QStringList({u"Update Account"_s, QString()}));
            const auto *alert = stage.app.top<UIAlertController>();
            const std::pair<const char16_t *, UITextInputTraits> fields[] = {
                {u"Jo",
                 {.keyboardType = UIKeyboardType::ASCIICapable,
                  .autocorrectionType = Correction::Yes,
                  .textContentType = Content::Name}},
                {u"New Password",
                 {.autocorrectionType = Correction::No,
                  .textContentType = version < 12 ? Content::Unspecified : Content::NewPassword,
                  .secureTextEntry = true}},
                {u"Current Password",
                 {.textContentType = version < 12 ? Content::Unspecified : Content::Password,
                  .secureTextEntry = true}},
            };
            QCOMPARE(alert->textFields().size(), std::size(fields));
            for (std::size_t i = 0; i < std::size(fields); ++i) {
                const UITextField &field = *alert->textFields()[i];
                QCOMPARE(field.placeholder(), QString::fromUtf16(fields[i].first));
                QVERIFY(field.inputTraits() == fields[i].second);
                QCOMPARE(field.borderStyle(), UITextField::BorderStyle::RoundedRect);
                QCOMPARE(field.text(), std::optional(QString()));
            }
            QCOMPARE(alert->actions()[0]->title(), u"Dismiss"_s);
            QCOMPARE(alert->actions()[0]->style(), UIAlertAction::Style::Cancel);
            QCOMPARE(alert->actions()[1]->title(), u"Update"_s);
        }
    }

    void updates_data()
    {
        QTest::addColumn<Texts>("texts");
        QTest::addColumn<QByteArray>("reply"); // of the service itself if empty
        QTest::addColumn<QStringList>("alert");
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("name");
        const auto row =
            [](const char *name, const Texts &texts, const char *reply, const char16_t *title,
               const char16_t *message, const QString &sent, const char16_t *kept = u"Jo") {
                QTest::newRow(name)
                    << texts << QByteArray(reply)
                    << QStringList{QString::fromUtf16(title), QString::fromUtf16(message)} << sent
                    << QString::fromUtf16(kept);
            };
        const auto items = [](const QString &more,
                              const QString &password = u"secret"_s) -> QString {
            return u"userEmail=jo%40wzt.example&userOldPassword="_s + SHA256(password) + more;
        };
        const QString changed = u"&userNewPassword="_s + SHA256(u" new "_s);
        const Texts renamed{u"New"_s, u""_s, u"secret"_s};
        const char16_t done[] = u"Account successfully updated.";
        row("no current password", {u"New"_s, u"new"_s, std::nullopt}, "", u"Error",
            u"Enter your password to confirm changes.", {});
        row("nothing at all", {u""_s, u""_s, u""_s}, "", u"Error",
            u"Enter changes to update account.", {});
        row("nothing to change", {std::nullopt, u""_s, u"secret"_s}, "", u"Error",
            u"Enter changes to update account.", {});
        row("a name", renamed, "", u"Great!", done, items(u"&userName=New"_s), u"New");
        row("blanks are kept", {u" New "_s, u" new "_s, u"secret"_s}, another, u"Great!", done,
            items(u"&userName=%20New%20"_s + changed), u"New");
        row("a password", {u""_s, u" new "_s, u"secret"_s}, "", u"Great!", done, items(changed));
        row("an empty current password", {u"New"_s, u""_s, u""_s}, "", u"Error",
            u"Entered password did not match this account", items(u"&userName=New"_s, {}));
        row("an unknown address", renamed, R"({"result":"User Not Found"})", u"Error",
            u"An account was not found for the supplied email.", items(u"&userName=New"_s));
        row("nonsense", renamed, "<html>", u"Error", u"An unknown error occured.",
            items(u"&userName=New"_s));
    }

    void updates()
    {
        QFETCH(const Texts, texts);
        QFETCH(const QByteArray, reply);
        QFETCH(const QString, sent);
        Stage stage;
        if (!reply.isEmpty())
            stage.app.service().stage("/update.php", Fault::json(reply));
        stage.update(texts);
        QTRY_VERIFY(!stage.alert().isEmpty());
        QTEST(stage.alert(), "alert");
        QTEST(stage.name(), "name");
        const auto requests = stage.app.service().requests();
        QCOMPARE(requests.size(), sent.isEmpty() ? 0 : 1);
        if (!requests.isEmpty())
            QCOMPARE(requests[0].target, QByteArray("/update.php?" + sent.toLatin1()));
    }

    void aNewPasswordIsNeededFromThenOn()
    {
        Stage stage;
        stage.update({u"Joanna"_s, u"changed"_s, u"secret"_s});
        QTRY_VERIFY(!stage.alert().isEmpty());
        QCOMPARE(stage.cell<WZTAccountTableViewCell>(1)->userNameLabel()->text(), u"Joanna"_s);
        stage.app.top<UIAlertController>()->triggerDefault();
        for (const bool works : {false, true}) {
            if (stage.app.delegate().currentUser())
                stage.cell<WZTButtonTableViewCell>(2)->button()->activate();
            auto *login = stage.app.top<WZTLoginViewController>();
            login->emailTextField()->edit(u"jo@wzt.example"_s);
            login->passwordTextField()->edit(works ? u"changed"_s : u"secret"_s);
            login->loginButton()->activate();
            if (works) {
                QTRY_VERIFY(stage.app.delegate().currentUser());
                QCOMPARE(stage.name(), u"Joanna"_s);
            } else {
                QTRY_VERIFY(!stage.alert().isEmpty());
                stage.app.top<UIAlertController>()->triggerDefault();
            }
        }
    }

    /// What was asked for before comes back to nobody, or to somebody else.
    void signingOutHolds_data()
    {
        QTest::addColumn<bool>("updates");
        QTest::addColumn<QString>("next");
        for (const bool updates : {false, true}) {
            QTest::addRow("nobody, %d", updates) << updates << QString();
            QTest::addRow("somebody else, %d", updates) << updates << u"kim@wzt.example"_s;
            QTest::addRow("the same again, %d", updates) << updates << u"jo@wzt.example"_s;
        }
    }

    void signingOutHolds()
    {
        QFETCH(const bool, updates);
        QFETCH(const QString, next);
        Stage stage;
        stage.app.service().stage(updates ? "/update.php" : "/user.php",
                                  Fault::json(another).after(std::chrono::milliseconds(100)));
        if (updates)
            stage.update({u"New"_s, u""_s, u"secret"_s});
        else
            stage.refreshControl().pull();
        stage.screen().logout(nullptr);
        if (!next.isEmpty())
            stage.app.delegate().setCurrentUser(WZTUser(1, next, u"Kim"_s));
        if (updates)
            QTRY_COMPARE(stage.alert().value(0), u"Great!"_s);
        else
            QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        const bool same = next == u"jo@wzt.example";
        QCOMPARE(stage.app.delegate().currentUser().has_value(), !next.isEmpty());
        if (!next.isEmpty())
            QCOMPARE(stage.name(), same ? u"New"_s : u"Kim"_s);
    }

    void nobodyIsAnAddressWithoutAValue()
    {
        Stage stage;
        stage.app.delegate().logout();
        stage.refreshControl().pull();
        QTRY_VERIFY(!stage.refreshControl().isRefreshing());
        QCOMPARE(stage.app.service().requests().last().target, QByteArray("/user.php?userEmail"));
        QVERIFY(!stage.app.delegate().currentUser());
    }

    void aSuccessWithoutAUserIsASuccess()
    {
        Stage stage;
        stage.screen().updateEnded(1, std::nullopt, u"jo@wzt.example"_s);
        QCOMPARE(stage.alert(), QStringList({u"Great!"_s, u"Account successfully updated."_s}));
        QCOMPARE(stage.name(), u"Jo"_s);
    }
};

WZT_TEST(AccountTest)
#include "AccountTest.moc"
