#include "mail/MimeForm.h"

#include <gmime/gmime.h>

#include <memory>
#include <mutex>

namespace tarnwick {

namespace {

struct Release {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Held = std::unique_ptr<Object, Release>;

void startGMime() {
    static std::once_flag started;
    std::call_once(started, g_mime_init);
}

Held<GMimePart> partOf(const std::string& type, const std::string& content) {
    Held<GMimePart> part(g_mime_part_new());
    const Held<GMimeContentType> parsed(g_mime_content_type_parse(nullptr, type.c_str()));
    g_mime_object_set_content_type(GMIME_OBJECT(part.get()), parsed.get());
    const Held<GMimeStream> stream(
        g_mime_stream_mem_new_with_buffer(content.data(), content.size()));
    const Held<GMimeDataWrapper> wrapper(
        g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
    g_mime_part_set_content(part.get(), wrapper.get());
    return part;
}

// Base64 even for text, so that it arrives byte for byte.
Held<GMimePart> attachmentPart(const MailAttachment& attachment) {
    auto part = partOf(attachment.type, attachment.data.value_or(std::string()));
    g_mime_part_set_content_encoding(part.get(), GMIME_CONTENT_ENCODING_BASE64);
    g_mime_object_set_disposition(GMIME_OBJECT(part.get()), GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part.get(), attachment.name.c_str());
    return part;
}

Held<GMimeMultipart> parts(const MailMessage& message) {
    Held<GMimeMultipart> parts(g_mime_multipart_new_with_subtype("mixed"));
    g_mime_multipart_add(parts.get(),
                         GMIME_OBJECT(partOf("text/plain; charset=utf-8", message.body).get()));
    for (const MailAttachment& attachment : message.attachments)
        g_mime_multipart_add(parts.get(), GMIME_OBJECT(attachmentPart(attachment).get()));
    return parts;
}

void setHeaders(GMimeMessage* mail, const MailMessage& message, std::time_t date) {
    GDateTime* time = g_date_time_new_from_unix_utc(date);
    g_mime_message_set_date(mail, time);
    g_date_time_unref(time);
    g_mime_message_set_subject(mail, message.subject.c_str(), "utf-8");
    for (const std::string& recipient : message.recipients)
        g_mime_message_add_mailbox(mail, GMIME_ADDRESS_TYPE_TO, nullptr, recipient.c_str());
}

}  // namespace

std::string mimeForm(const MailMessage& message, std::time_t date) {
    startGMime();
    const Held<GMimeMessage> mail(g_mime_message_new(TRUE));
    setHeaders(mail.get(), message, date);
    g_mime_message_set_mime_part(mail.get(), GMIME_OBJECT(parts(message).get()));
    g_mime_object_encode(GMIME_OBJECT(mail.get()), GMIME_ENCODING_CONSTRAINT_7BIT);
    char* text = g_mime_object_to_string(GMIME_OBJECT(mail.get()), nullptr);
    std::string form(text);
    g_free(text);
    return form;
}

}  // namespace tarnwick
