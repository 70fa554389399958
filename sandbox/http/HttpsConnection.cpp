// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/HttpsConnection.h"

#include "sandbox/http/KeyUpdates.h"
#include "sandbox/http/QueryItems.h"

#include <openssl/ssl.h>

#include <boost/asio/post.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include <algorithm>
#include <array>
#include <optional>

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;
using namespace std::chrono_literals;
using boost::system::error_code;

namespace sandbox {

namespace {

constexpr auto handshakeTime = 10s;
constexpr auto idleTime = 60s;
constexpr auto shutdownTime = 1s;
// A field of 64 KiB is more than the parser has room for.
constexpr std::uint32_t headerLimit = 65'536;
constexpr std::uint64_t bodyLimit = 65'536;

/// The HTTP status for a request that could not be read.
int statusOf(const error_code &error)
{
    if (error == http::error::header_limit) {
        return 431;
    }
    return error == http::error::body_limit ? 413 : 400;
}

// A stream needs a context, even if its connection never begins a handshake.
asio::ssl::context shared(SSL_CTX *context)
{
    if (!context) {
        return asio::ssl::context(asio::ssl::context::tls_server);
    }
    SSL_CTX_up_ref(context);
    return asio::ssl::context(context);
}

// Every operation runs on the server's thread and starts at most one other.
class Connection final : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, SSL_CTX *context, const HttpsServer::Handler &handler)
        : m_context(shared(context)),
          m_stream(std::move(socket), m_context),
          m_timer(m_stream.get_executor()),
          m_handler(handler)
    {
    }

    using Step = void (Connection::*)();

    // A handler that takes the next step unless the operation has failed.
    auto then(Step step)
    {
        return [self = shared_from_this(), step](const error_code &error, auto &&...) {
            if (!error) {
                (self.get()->*step)();
            }
        };
    }

    void start(std::chrono::milliseconds delay) { pauseThen(delay, &Connection::handshake); }

    // Discards all input, encrypted as it is, until the client closes the connection.
    void readUntilClosed()
    {
        tcpStream().expires_never();
        tcpStream().async_read_some(asio::buffer(m_discarded), then(&Connection::readUntilClosed));
    }

private:
    beast::tcp_stream &tcpStream() { return m_stream.next_layer(); }

    void handshake()
    {
        tcpStream().expires_after(handshakeTime);
        m_stream.async_handshake(asio::ssl::stream_base::server, then(&Connection::read));
    }

    void read()
    {
        m_parser.emplace();
        m_parser->header_limit(headerLimit);
        m_parser->body_limit(bodyLimit);
        tcpStream().expires_after(idleTime);
        http::async_read(
            m_stream, m_buffer, *m_parser,
            [self = shared_from_this()](error_code error, size_t) { self->haveRead(error); });
    }

    void haveRead(const error_code &error)
    {
        if (error == http::error::end_of_stream) {
            return shutDownTls();
        }
        if (error
            && error.category() != http::make_error_code(http::error::bad_method).category()) {
            return;
        }
        m_handler(error ? malformed(statusOf(error)) : request(), answerTo(shared_from_this()));
    }

    // The answer gives up its reference when it is called: the connection must be destroyed on the
    // server's thread.
    static HttpsServer::Answer answerTo(std::shared_ptr<Connection> self)
    {
        return [self = std::move(self)](Transmission transmission) mutable {
            const auto executor = self->m_stream.get_executor();
            asio::post(executor,
                       [self = std::move(self), transmission = std::move(transmission)]() mutable {
                           self->send(std::move(transmission));
                       });
        };
    }

    static Request malformed(int status)
    {
        Request request;
        request.keepsAlive = false;
        request.malformed = status;
        return request;
    }

    Request request() const
    {
        const auto &message = m_parser->get();
        const auto bytes = [](beast::string_view text) {
            return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
        };
        Request request;
        request.method = bytes(message.method_string());
        request.keepsAlive = message.keep_alive();
        request.bodySize = static_cast<qint64>(message.body().size());
        for (const auto &field : message) {
            request.headers.append({bytes(field.name_string()), bytes(field.value())});
        }
        setTarget(request, bytes(message.target()));
        return request;
    }

    void send(Transmission transmission)
    {
        m_transmission = std::move(transmission);
        m_sent = 0;
        pauseThen(m_transmission.delay, &Connection::write);
    }

    void pauseThen(std::chrono::milliseconds time, Step step)
    {
        if (time <= 0ms) {
            return (this->*step)();
        }
        tcpStream().expires_never();
        m_timer.expires_after(time);
        m_timer.async_wait(then(step));
    }

    void write()
    {
        if (m_transmission.keyUpdates > 0) {
            return writeAfterKeyUpdates();
        }
        const size_t left = static_cast<size_t>(m_transmission.bytes.size()) - m_sent;
        if (left == 0) {
            return m_transmission.isEndless ? writeBlanks() : end();
        }
        const size_t size = m_transmission.pieceSize > 0
            ? std::min(left, static_cast<size_t>(m_transmission.pieceSize))
            : left;
        tcpStream().expires_after(idleTime);
        asio::async_write(m_stream, asio::buffer(m_transmission.bytes.constData() + m_sent, size),
                          [self = shared_from_this()](error_code error, size_t written) {
                              if (error) {
                                  return;
                              }
                              self->m_sent += written;
                              self->pauseThen(self->m_transmission.pause, &Connection::write);
                          });
    }

    void writeBlanks()
    {
        static const std::string blanks(64 * size_t{1024}, ' ');
        tcpStream().expires_after(idleTime);
        asio::async_write(m_stream, asio::buffer(blanks), then(&Connection::writeBlanks));
    }

    void end()
    {
        switch (m_transmission.ending) {
        case Transmission::Ending::KeepOpen:
            return read();
        case Transmission::Ending::Close:
            return shutDownTls();
        case Transmission::Ending::Cut:
            return tcpStream().close();
        case Transmission::Ending::Reset: {
            error_code ignored;
            tcpStream().socket().set_option(tcp::socket::linger(true, 0), ignored);
            return tcpStream().close();
        }
        case Transmission::Ending::Silence:
            return readUntilClosed();
        }
    }

    // The answer goes past the stream as well, like the updates before it.
    void writeAfterKeyUpdates()
    {
        SSL *ssl = m_stream.native_handle();
        sendKeyUpdates(tcpStream().socket(), ssl, m_transmission.keyUpdates,
                       [self = shared_from_this(), ssl] {
                           const QByteArray &bytes = self->m_transmission.bytes;
                           SSL_write(ssl, bytes.constData(), static_cast<int>(bytes.size()));
                           self->tcpStream().close();
                       });
    }

    void shutDownTls()
    {
        tcpStream().expires_after(shutdownTime);
        m_stream.async_shutdown([self = shared_from_this()](error_code) { self->drain(); });
    }

    // Closing a socket with unread input sends a reset, which discards the answer.
    void drain()
    {
        error_code ignored;
        tcpStream().socket().shutdown(tcp::socket::shutdown_send, ignored);
        tcpStream().async_read_some(asio::buffer(m_discarded), then(&Connection::drain));
    }

    asio::ssl::context m_context;
    asio::ssl::stream<beast::tcp_stream> m_stream;
    asio::steady_timer m_timer;
    const HttpsServer::Handler &m_handler;
    beast::flat_buffer m_buffer;
    std::optional<http::request_parser<http::string_body>> m_parser;
    Transmission m_transmission;
    size_t m_sent = 0;
    std::array<char, 4096> m_discarded{};
};

} // namespace

void HttpsConnection::start(tcp::socket socket, const HttpsServer::ConnectionSettings &settings,
                            const HttpsServer::Handler &handler)
{
    error_code ignored;
    socket.set_option(tcp::no_delay(true), ignored);
    const auto connection =
        std::make_shared<Connection>(std::move(socket), settings.context, handler);
    if (settings.context) {
        connection->start(settings.delay);
    } else {
        connection->readUntilClosed();
    }
}

} // namespace sandbox
