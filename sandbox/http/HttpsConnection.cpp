// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/HttpsConnection.h"

#include "sandbox/http/QueryItems.h"

#include <openssl/err.h>
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

int problemOf(const error_code &error)
{
    if (error == http::error::header_limit) {
        return 431;
    }
    return error == http::error::body_limit ? 413 : 400;
}

// Without a handshake no context is ever used, but the stream wants one.
asio::ssl::context shared(SSL_CTX *context)
{
    if (!context) {
        return asio::ssl::context(asio::ssl::context::tls_server);
    }
    SSL_CTX_up_ref(context);
    return asio::ssl::context(context);
}

// Every operation below runs on the server's thread, and is followed by at most one other.
class Connection final : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, SSL_CTX *context, const HttpsServer::Handler &handler)
        : m_context(shared(context)),
          m_stream(std::move(socket), m_context),
          m_timer(m_stream.get_executor()),
          m_handler(handler)
    {
    }

    void start(std::chrono::milliseconds delay) { pauseThen(delay, &Connection::handshake); }

    // Reads and drops whatever comes, until the client goes.
    template <typename Stream>
    void readUntilClosed(Stream &stream)
    {
        tcpStream().expires_never();
        stream.async_read_some(asio::buffer(m_discarded),
                               [self = shared_from_this(), &stream](error_code error, size_t) {
                                   if (!error) {
                                       self->readUntilClosed(stream);
                                   }
                               });
    }

    void readUntilClosed() { readUntilClosed(tcpStream()); }

private:
    beast::tcp_stream &tcpStream() { return m_stream.next_layer(); }

    void handshake()
    {
        tcpStream().expires_after(handshakeTime);
        m_stream.async_handshake(asio::ssl::stream_base::server,
                                 [self = shared_from_this()](error_code error) {
                                     if (!error) {
                                         self->read();
                                     }
                                 });
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
        m_handler(error ? malformed(problemOf(error)) : request(), answerTo(shared_from_this()));
    }

    // Gives its reference up when it is called: on another thread it must not be the last.
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

    void pauseThen(std::chrono::milliseconds time, void (Connection::*step)())
    {
        if (time <= 0ms) {
            return (this->*step)();
        }
        tcpStream().expires_never();
        m_timer.expires_after(time);
        m_timer.async_wait([self = shared_from_this(), step](error_code error) {
            if (!error) {
                (self.get()->*step)();
            }
        });
    }

    void write()
    {
        if (m_transmission.keyUpdates > 0) {
            return startKeyUpdates();
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
        asio::async_write(m_stream, asio::buffer(blanks),
                          [self = shared_from_this()](error_code error, size_t) {
                              if (!error) {
                                  self->writeBlanks();
                              }
                          });
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
            return readUntilClosed(m_stream);
        }
    }

    // Past the stream, which sends none without a byte of data.
    void startKeyUpdates()
    {
        tcp::socket &socket = tcpStream().socket();
        error_code ignored;
        socket.non_blocking(true, ignored);
        SSL_set0_wbio(m_stream.native_handle(),
                      BIO_new_socket(socket.native_handle(), BIO_NOCLOSE));
        sendKeyUpdates();
    }

    void sendKeyUpdates()
    {
        constexpr int atOnce = 1000;
        SSL *ssl = m_stream.native_handle();
        int state = SSL_ERROR_NONE;
        for (int i = 0; i < atOnce && m_transmission.keyUpdates > 0 && state == SSL_ERROR_NONE;
             ++i, --m_transmission.keyUpdates) {
            SSL_key_update(ssl, SSL_KEY_UPDATE_NOT_REQUESTED);
            ERR_clear_error();
            state = SSL_get_error(ssl, SSL_do_handshake(ssl));
        }
        if (state != SSL_ERROR_NONE && state != SSL_ERROR_WANT_WRITE) {
            return;
        }
        if (state == SSL_ERROR_NONE && m_transmission.keyUpdates == 0) {
            SSL_write(ssl, m_transmission.bytes.constData(),
                      static_cast<int>(m_transmission.bytes.size()));
            return tcpStream().close();
        }
        tcpStream().socket().async_wait(tcp::socket::wait_write,
                                        [self = shared_from_this()](error_code error) {
                                            if (!error) {
                                                self->sendKeyUpdates();
                                            }
                                        });
    }

    void shutDownTls()
    {
        tcpStream().expires_after(shutdownTime);
        m_stream.async_shutdown([self = shared_from_this()](error_code) { self->drain(); });
    }

    // Closing while something is still unread would take the answer back.
    void drain()
    {
        error_code ignored;
        tcpStream().socket().shutdown(tcp::socket::shutdown_send, ignored);
        tcpStream().async_read_some(asio::buffer(m_discarded),
                                    [self = shared_from_this()](error_code error, size_t) {
                                        if (!error) {
                                            self->drain();
                                        }
                                    });
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
