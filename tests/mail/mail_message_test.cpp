#include <gmime/gmime.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "mail/MailMessage.h"
#include "mail/MimeForm.h"

namespace tarnwick::testing {
namespace {

struct Release {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Held = std::unique_ptr<Object, Release>;

// A message as another mail program reads it.
Held<GMimeMessage> readMail(const std::string& form) {
    const Held<GMimeStream> stream(g_mime_stream_mem_new_with_buffer(form.data(), form.size()));
    const Held<GMimeParser> parser(g_mime_parser_new_with_stream(stream.get()));
    return Held<GMimeMessage>(g_mime_parser_construct_message(parser.get(), nullptr));
}

GMimePart* partOf(const Held<GMimeMessage>& mail, int place) {
    auto* parts = GMIME_MULTIPART(g_mime_message_get_mime_part(mail.get()));
    return GMIME_PART(g_mime_multipart_get_part(parts, place));
}

std::string contentOf(GMimePart* part) {
    const Held<GMimeStream> stream(g_mime_stream_mem_new());
    g_mime_data_wrapper_write_to_stream(g_mime_part_get_content(part), stream.get());
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
    return {reinterpret_cast<const char*>(bytes->data), bytes->len};
}

TEST(MailMessage, AnotherProgramReadsWhatWasWritten) {
    const std::string body = "Grüße\nFrom here on.\n.\n" + std::string(1200, 'x') + "\n";
    const std::string noText = std::string("\0\r\n", 3) + std::string(3'000'000, '\xFF');
    const std::optional<std::string> attached[] = {std::nullopt, "one\r\ntwo\nthree", noText};
    for (const auto& data : attached) {
        const MailMessage mail = {.subject = "Päckchen – " + std::string(200, 's'),
                                  .recipients = {"one@example.org", "two@example.org"},
                                  .body = body,
                                  .attachments = {{"Liste für \"dich\".txt", "text/plain", data}}};
        const std::string form = mimeForm(mail, 1'700'000'000);
        const auto read = readMail(form);
        EXPECT_EQ(g_mime_message_get_subject(read.get()), mail.subject);
        EXPECT_EQ(internet_address_list_length(g_mime_message_get_to(read.get())), 2);
        EXPECT_EQ(contentOf(partOf(read, 0)), body);
        EXPECT_TRUE(contentOf(partOf(read, 1)) == data.value_or(""));
        EXPECT_EQ(g_mime_part_get_filename(partOf(read, 1)), mail.attachments[0].name);
        EXPECT_NE(form.find("Date: Tue, 14 Nov 2023 22:13:20 +0000\n"), std::string::npos);
        for (std::size_t start = 0, end = 0; start < form.size(); start = end + 1) {
            end = std::min(form.find('\n', start), form.size());
            ASSERT_LE(end - start, 998U) << "servers take no longer line";
        }
    }
}

TEST(MailMessage, RecipientsAreBareAddresses) {
    for (const char* good : {"me@example.org", "a.b+c_d@sub-domain.example.org", "root@localhost"})
        EXPECT_TRUE(isWellFormedRecipient(good)) << good;
    for (const char* bad :
         {"me", "me@", "@example.org", "a@b@c", ".a@b", "a.@b", "a..b@c", "a@b..c", "a@-b", "a@b-",
          "a@b-.c", "a@b.-c", "a b@c", "ä@b", "a@b\nBcc: x@y", "A <a@b>"})
        EXPECT_FALSE(isWellFormedRecipient(bad)) << bad;
    EXPECT_FALSE(isWellFormedRecipient(std::string(65, 'a') + "@example.org"));
    EXPECT_FALSE(isWellFormedRecipient("a@" + std::string(253, 'a')));
}

TEST(MailMessage, ALineBreakInAHeaderIsRefused) {
    const MailMessage good = {.subject = "s",
                              .recipients = {"a@b.c"},
                              .body = "may\nbreak",
                              .attachments = {{"n", "text/plain", "d\n"}}};
    EXPECT_EQ(faultOf(good), std::nullopt);
    const std::pair<MailMessage, std::string> rows[] = {
        {{.subject = "x\nBcc: y@z"}, "The subject"},
        {{.recipients = {"a@b.c", "x\ry"}}, "A recipient"},
        {{.attachments = {{.name = std::string("x\0y", 3)}}}, "The name of an attachment"},
        {{.attachments = {{.type = "x\n"}}}, "The type of an attachment"}};
    for (const auto& [breaking, part] : rows)
        EXPECT_EQ(headerFaultOf(breaking), part + " of a mail must not contain a line break.");
    EXPECT_EQ(faultOf({.subject = "s"}), "The mail has no recipient.");
    EXPECT_EQ(faultOf({.recipients = {"a@b.c", "bob"}}), "\"bob\" is not a mail address.");
}

}  // namespace
}  // namespace tarnwick::testing
