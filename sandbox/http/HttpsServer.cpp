// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/HttpsServer.h"

#include "sandbox/http/HttpsConnection.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

#include <array>
#include <atomic>
#include <csignal>
#include <thread>

namespace asio = boost::asio;
using asio::ip::tcp;
using namespace std::chrono_literals;
using boost::system::error_code;

namespace sandbox {

namespace {

/// The acceptor of one address.
struct Listener {
    explicit Listener(asio::io_context &io) : acceptor(io), retryTimer(io) {}

    error_code open(const tcp::endpoint &endpoint)
    {
        error_code error;
        acceptor.open(endpoint.protocol(), error);
        if (!error) {
            acceptor.set_option(tcp::acceptor::reuse_address(true), error);
        }
        if (!error) {
            acceptor.bind(endpoint, error);
        }
        if (!error) {
            acceptor.listen(asio::socket_base::max_listen_connections, error);
        }
        if (error) {
            close();
        }
        return error;
    }

    void close()
    {
        error_code ignored;
        acceptor.close(ignored);
    }

    tcp::acceptor acceptor;
    asio::steady_timer retryTimer;
};

} // namespace

struct HttpsServer::State {
    Handler handler;
    ConnectionSetup connectionSettings;
    std::atomic<int> accepted{0};
    quint16 port = 0;
    asio::io_context io{1};
    std::array<Listener, 2> listeners{Listener(io), Listener(io)};
    std::thread thread;

    void run()
    {
        // Key updates bypass the library's protection against this signal.
        sigset_t signals{};
        sigemptyset(&signals);
        sigaddset(&signals, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &signals, nullptr);
        while (!io.stopped()) {
            try {
                io.run();
            } catch (...) {
                continue;
            }
        }
    }

    // A client of "localhost" would first try another program at the same port of ::1.
    error_code listenOnBoth(quint16 wanted)
    {
        auto &[ipv4, ipv6] = listeners;
        error_code error = ipv4.open({asio::ip::address_v4::loopback(), wanted});
        if (error) {
            return error;
        }
        port = ipv4.acceptor.local_endpoint(error).port();
        error = ipv6.open({asio::ip::address_v6::loopback(), port});
        if (error != asio::error::address_in_use) {
            return {};
        }
        ipv4.close();
        return error;
    }

    void accept(Listener &listener)
    {
        listener.acceptor.async_accept([this, &listener](error_code error, tcp::socket socket) {
            if (error) {
                return retryLater(listener);
            }
            ++accepted;
            accept(listener); // first, so that an exception below cannot stop accepting
            HttpsConnection::start(std::move(socket), connectionSettings(), handler);
        });
    }

    // Probably out of file descriptors: an immediate retry would loop.
    void retryLater(Listener &listener)
    {
        listener.retryTimer.expires_after(100ms);
        listener.retryTimer.async_wait([this, &listener](error_code error) {
            if (!error) {
                accept(listener);
            }
        });
    }
};

HttpsServer::HttpsServer(Handler handler, ConnectionSetup connectionSettings)
    : m_state(std::make_unique<State>())
{
    m_state->handler = std::move(handler);
    m_state->connectionSettings = std::move(connectionSettings);
}

HttpsServer::~HttpsServer()
{
    stop();
}

QString HttpsServer::start(quint16 port)
{
    error_code error = m_state->listenOnBoth(port);
    for (int tries = 1; error == asio::error::address_in_use && port == 0 && tries < 10; ++tries) {
        error = m_state->listenOnBoth(0);
    }
    if (error) {
        return QStringLiteral("port %1: %2").arg(port).arg(QString::fromStdString(error.message()));
    }
    for (Listener &listener : m_state->listeners) {
        if (listener.acceptor.is_open()) {
            m_state->accept(listener);
        }
    }
    m_state->thread = std::thread([state = m_state.get()] { state->run(); });
    return {};
}

void HttpsServer::stop()
{
    m_state->io.stop();
    if (m_state->thread.joinable()) {
        m_state->thread.join();
    }
}

quint16 HttpsServer::port() const
{
    return m_state->port;
}

int HttpsServer::connectionCount() const
{
    return m_state->accepted;
}

} // namespace sandbox
