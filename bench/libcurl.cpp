// Sends a mailing with libcurl, on one connection, to compare with.
//
//     bench_libcurl PORT COUNT mime|ready TEXT [ATTACHMENT]
//
// mime: the message is built by libcurl's MIME interface; ready: it is handed over as a ready-made
// text, with the attachment encoded once. In TEXT, *NOME* becomes the recipient's name.

#include <curl/curl.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Letter
{
    std::string address;
    std::string body;
    std::vector<std::string> headers;
};

std::string contentOf(const char *path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string personalised(const std::string &text, const std::string &name)
{
    constexpr std::string_view Token = "*NOME*";
    std::string result = text;
    for (std::size_t at = 0; (at = result.find(Token, at)) != std::string::npos; at += name.size())
        result.replace(at, Token.size(), name);
    return result;
}

Letter letterTo(int number, const std::string &text)
{
    const std::string name = "Recipient " + std::to_string(number);
    Letter letter;
    letter.address = "recipient" + std::to_string(number) + "@bench.example";
    letter.body = personalised(text, name);
    letter.headers = {"From: Bench <sender@bench.example>",
                      "To: " + letter.address,
                      "Subject: The letter of the bench",
                      "Date: Sat, 21 Nov 2026 09:00:00 +0100",
                      "Message-ID: <" + std::to_string(number) + "@bench.example>",
                      "X-Mailer: libcurl"};
    return letter;
}

std::string base64(const std::string &bytes)
{
    constexpr std::string_view Digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t BytesOfLine = 57;
    std::string result;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        unsigned group = 0;
        for (std::size_t i = at; i < at + 3; ++i)
            group = group << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0);
        for (int shift = 18; shift >= 0; shift -= 6)
            result += Digits[group >> shift & 63];
        if ((at + 3) % BytesOfLine == 0)
            result += "\r\n";
    }
    const std::size_t padding = (3 - bytes.size() % 3) % 3;
    for (std::size_t i = 0; i < padding; ++i)
        result[result.size() - 1 - i] = '=';
    return result;
}

/// A message as one text, and how far it has been read.
struct Reading
{
    std::string_view text;
};

std::size_t readOn(char *buffer, std::size_t size, std::size_t count, void *user)
{
    auto *reading = static_cast<Reading *>(user);
    const std::size_t length = reading->text.copy(buffer, size * count);
    reading->text.remove_prefix(length);
    return length;
}

class Client
{
public:
    Client(const char *port, std::string attachment)
        : m_attachment(std::move(attachment)),
          m_encodedAttachment(m_attachment.empty() ? std::string() : base64(m_attachment))
    {
        const std::string url = std::string("smtp://127.0.0.1:") + port + "/bench.example";
        curl_easy_setopt(m_curl.get(), CURLOPT_URL, url.c_str());
        curl_easy_setopt(m_curl.get(), CURLOPT_MAIL_FROM, "<sender@bench.example>");
        curl_easy_setopt(m_curl.get(), CURLOPT_UPLOAD, 1L);
    }

    bool sendReady(const Letter &letter)
    {
        std::string message;
        for (const std::string &header : letter.headers)
            (message += header) += "\r\n";
        const std::string textPart =
            "Content-Type: text/plain; charset=utf-8\r\n\r\n" + letter.body;
        message += "MIME-Version: 1.0\r\n";
        if (m_attachment.empty()) {
            message += textPart;
        } else {
            message += "Content-Type: multipart/mixed; boundary=\"=_bench\"\r\n\r\n--=_bench\r\n";
            message += textPart;
            message += "\r\n--=_bench\r\nContent-Type: application/octet-stream\r\n"
                       "Content-Disposition: attachment; filename=\"attachment.bin\"\r\n"
                       "Content-Transfer-Encoding: base64\r\n\r\n";
            message += m_encodedAttachment;
            message += "\r\n--=_bench--\r\n";
        }
        Reading reading{message};
        curl_easy_setopt(m_curl.get(), CURLOPT_READFUNCTION, readOn);
        curl_easy_setopt(m_curl.get(), CURLOPT_READDATA, &reading);
        return perform(letter);
    }

    bool sendMime(const Letter &letter)
    {
        curl_slist *headers = nullptr;
        for (const std::string &header : letter.headers)
            headers = curl_slist_append(headers, header.c_str());
        curl_mime *mime = curl_mime_init(m_curl.get());
        curl_mimepart *text = curl_mime_addpart(mime);
        curl_mime_data(text, letter.body.data(), letter.body.size());
        curl_mime_type(text, "text/plain; charset=utf-8");
        if (!m_attachment.empty()) {
            curl_mimepart *file = curl_mime_addpart(mime);
            curl_mime_data(file, m_attachment.data(), m_attachment.size());
            curl_mime_filename(file, "attachment.bin");
            curl_mime_type(file, "application/octet-stream");
            curl_mime_encoder(file, "base64");
        }
        curl_easy_setopt(m_curl.get(), CURLOPT_HTTPHEADER, headers);
        curl_easy_setopt(m_curl.get(), CURLOPT_MIMEPOST, mime);
        const bool sent = perform(letter);
        curl_easy_setopt(m_curl.get(), CURLOPT_MIMEPOST, nullptr);
        curl_mime_free(mime);
        curl_slist_free_all(headers);
        return sent;
    }

private:
    bool perform(const Letter &letter)
    {
        const std::string recipient = '<' + letter.address + '>';
        curl_slist *recipients = curl_slist_append(nullptr, recipient.c_str());
        curl_easy_setopt(m_curl.get(), CURLOPT_MAIL_RCPT, recipients);
        const CURLcode code = curl_easy_perform(m_curl.get());
        curl_slist_free_all(recipients);
        if (code != CURLE_OK)
            std::fprintf(stderr, "libcurl: %s\n", curl_easy_strerror(code));
        return code == CURLE_OK;
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> m_curl{curl_easy_init(), curl_easy_cleanup};
    std::string m_attachment;
    std::string m_encodedAttachment;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 5) {
        std::fputs("bench_libcurl PORT COUNT mime|ready TEXT [ATTACHMENT]\n", stderr);
        return 2;
    }
    curl_global_init(CURL_GLOBAL_ALL);
    const int count = std::atoi(argv[2]);
    const bool mime = std::string_view(argv[3]) == "mime";
    const std::string text = contentOf(argv[4]);
    Client client(argv[1], argc > 5 ? contentOf(argv[5]) : std::string());
    for (int number = 1; number <= count; ++number) {
        const Letter letter = letterTo(number, text);
        if (!(mime ? client.sendMime(letter) : client.sendReady(letter)))
            return 1;
    }
}
