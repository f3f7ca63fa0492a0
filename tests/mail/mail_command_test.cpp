#include <gtest/gtest.h>

#include <filesystem>

#include "support/CommandLineRun.h"
#include "support/Operations.h"
#include "support/Terminal.h"

namespace tarnwick::testing {
namespace {

// The command with a mailer that keeps what it gets.
struct MailRun : CommandLineRun {
    MailRun() { setMailer("cat >" + folder.path() + "/mail"); }
    void setMailer(const std::string& script) const {
        folder.put("sendmail", "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(mailerProgram, std::filesystem::perms::owner_all);
    }
    std::string mail() const { return folder.content("mail"); }
};

TEST(MailCommand, SendsTheListToEachAddress) {
    MailRun tarnwick;
    tarnwick.isRoot = false;
    tarnwick.folder.put(savedPackages, "lantern\tinstall\n");
    EXPECT_EQ(tarnwick("mail --to me@example.org --to=you@example.org"), AllDone);
    EXPECT_EQ(tarnwick.results(), "Mail sent: me@example.org, you@example.org\n");
    EXPECT_EQ(tarnwick.problems(), "");
    for (const char* line : {"To: me@example.org, you@example.org\n",
                             "bGFudGVybglpbnN0YWxsCg==", "Subject: My Cydia Packages Backup\n"})
        EXPECT_NE(tarnwick.mail().find(line), std::string::npos) << line;
    EXPECT_EQ(tarnwick("mail --to me@example.org --json"), AllDone);
    EXPECT_EQ(tarnwick.results(), "{\"sent\":[\"me@example.org\"]}\n");
}

TEST(MailCommand, SaysWhatFailed) {
    MailRun tarnwick;
    const std::string empty = "tarnwick: there is no saved package list: the attachment is empty\n";
    EXPECT_EQ(tarnwick("mail --to me@example.org"), AllDone);
    EXPECT_EQ(tarnwick.problems(), empty);
    tarnwick.folder.put(savedPackages, "");
    tarnwick.setMailer("echo 'no route' >&2; exit 75");
    EXPECT_EQ(tarnwick("mail --to me@example.org"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(), "Mail sent failure: The mailer " + tarnwick.mailerProgram +
                                       " ended with status 75: no route\n");
    EXPECT_EQ(tarnwick.results(), "");
    EXPECT_EQ(tarnwick("mail --dry-run"), AllDone);
    EXPECT_EQ(tarnwick.results(), "run: " + tarnwick.mailerProgram + " -t -oi\n");
}

TEST(MailCommand, AsksForTheAddressesAtATerminal) {
    const Terminal terminal;
    const std::pair<const char*, int> rows[] = {
        {"me@example.org\n", AllDone}, {"\n", NotAllDone}, {"bob\n", WrongUsage}};
    for (const auto& [answer, status] : rows) {
        MailRun tarnwick;
        tarnwick.terminal = terminal.program;
        terminal.type(answer);
        EXPECT_EQ(tarnwick("mail"), status) << answer;
        EXPECT_EQ(tarnwick.mail() != "(none)", status == AllDone);
    }
}

TEST(MailCommand, SendsNothingWithoutGoodAddresses) {
    const std::pair<const char*, const char*> rows[] = {
        {"mail", "mail needs a recipient; without a terminal, use --to"},
        {"mail --to", "--to needs a value: ADDRESS"},
        {"mail --to=a@b.c --to bob --dry-run", "\"bob\" is not a mail address"}};
    for (const auto& [words, fault] : rows) {
        MailRun tarnwick;
        EXPECT_EQ(tarnwick(words), WrongUsage) << words;
        EXPECT_TRUE(tarnwick.problems().starts_with("tarnwick: " + std::string(fault))) << words;
        EXPECT_EQ(tarnwick.mail(), "(none)") << words;
    }
}

}  // namespace
}  // namespace tarnwick::testing
