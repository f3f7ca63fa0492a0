#include <gmime/gmime.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "mail/MailMessage.h"
#include "mail/MimeForm.h"

namespace tarnwick::testing {
namespace {

// A message as another mail program reads it.
class ReadMail {
public:
    explicit ReadMail(const std::string& bytes) {
        GMimeStream* stream = g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size());
        GMimeParser* parser = g_mime_parser_new_with_stream(stream);
        mail_.reset(g_mime_parser_construct_message(parser, nullptr));
        g_object_unref(parser);
        g_object_unref(stream);
    }

    std::string subject() const { return g_mime_message_get_subject(mail_.get()); }
    int recipientCount() const {
        return internet_address_list_length(g_mime_message_get_to(mail_.get()));
    }
    std::string body() const { return contentOf(part(0)); }
    GMimePart* part(int place) const {
        auto* parts = GMIME_MULTIPART(g_mime_message_get_mime_part(mail_.get()));
        return GMIME_PART(g_mime_multipart_get_part(parts, place));
    }
    static std::string contentOf(GMimePart* part) {
        GMimeStream* stream = g_mime_stream_mem_new();
        g_mime_data_wrapper_write_to_stream(g_mime_part_get_content(part), stream);
        const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream));
        std::string content(reinterpret_cast<const char*>(bytes->data), bytes->len);
        g_object_unref(stream);
        return content;
    }

private:
    struct Release {
        void operator()(GMimeMessage* mail) const { g_object_unref(mail); }
    };
    std::unique_ptr<GMimeMessage, Release> mail_;
};

std::string everyByte(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t place = 0; place < size; ++place)
        bytes[place] = static_cast<char>(place * 7 + place / 256);
    return bytes;
}

TEST(MailMessage, AnotherProgramReadsWhatWasWritten) {
    const std::string body = "Grüße\nFrom here on.\n.\n" + std::string(1200, 'x') + "\n";
    for (const std::optional<std::string>& data :
         {std::optional<std::string>(), std::optional<std::string>("one\r\ntwo\nthree"),
          std::optional(everyByte(3'000'000))}) {
        const MailMessage mail = {.subject = "Päckchen – " + std::string(200, 's'),
                                  .recipients = {"one@example.org", "two@example.org"},
                                  .body = body,
                                  .attachments = {{"Liste für \"dich\".txt", "text/plain", data}}};
        const std::string form = mimeForm(mail, 1'700'000'000);
        const ReadMail read(form);
        EXPECT_EQ(read.subject(), mail.subject);
        EXPECT_EQ(read.recipientCount(), 2);
        EXPECT_EQ(read.body(), body);
        EXPECT_TRUE(ReadMail::contentOf(read.part(1)) == data.value_or(""));
        EXPECT_EQ(g_mime_part_get_filename(read.part(1)), mail.attachments[0].name);
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
    const std::string longLocalPart = std::string(65, 'a') + "@example.org";
    const std::string longDomain = "a@" + std::string(260, 'a');
    for (const std::string& bad :
         {std::string(), std::string("@"), std::string("me"), std::string("me@"),
          std::string("@example.org"), std::string("a@b@c"), std::string(".a@b"),
          std::string("a..b@c"), std::string("a@b..c"), std::string("a@-b"), std::string("a@b-.c"),
          std::string("a b@c"), std::string("a@b\nBcc: x@y"), std::string("A <a@b>"),
          std::string("a,b@c"), std::string("ä@b"), longLocalPart, longDomain})
        EXPECT_FALSE(isWellFormedRecipient(bad)) << bad;
}

TEST(MailMessage, ALineBreakInAHeaderIsRefused) {
    const MailMessage good = {.subject = "s",
                              .recipients = {"a@b.c"},
                              .body = "may\nbreak",
                              .attachments = {{"n", "text/plain", "d\n"}}};
    EXPECT_EQ(faultOf(good), std::nullopt);
    for (const std::string& breaking :
         {std::string("x\nBcc: y@z"), std::string("x\ry"), std::string("x\0y", 3)})
        for (const int header : {0, 1, 2, 3}) {
            MailMessage mail = good;
            MailAttachment& attachment = mail.attachments[0];
            *std::array{&mail.subject, &mail.recipients[0], &attachment.name,
                        &attachment.type}[static_cast<std::size_t>(header)] = breaking;
            const std::string fault = headerFaultOf(mail).value_or("none");
            EXPECT_TRUE(fault.ends_with(" of a mail must not contain a line break.")) << header;
        }
    EXPECT_EQ(faultOf({.subject = "s"}), "The mail has no recipient.");
    EXPECT_EQ(faultOf({.recipients = {"a@b.c", "bob"}}), "\"bob\" is not a mail address.");
}

}  // namespace
}  // namespace tarnwick::testing
