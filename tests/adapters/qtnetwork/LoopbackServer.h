#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo {

/// A web server on the loopback interface that answers each path with exactly the bytes that a test gives it.
class LoopbackServer final : public QTcpServer {
public:
    /// Answers one request on `socket`, in whatever way.
    using Handler = std::function<void(QTcpSocket& socket)>;

    LoopbackServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection())
                serve(*socket);
        });
    }

    [[nodiscard]] std::string address() const { return "http://127.0.0.1:" + std::to_string(serverPort()); }

    std::map<std::string, Handler> handlers;
    std::vector<std::string> requests; ///< the heads, as they came
    std::vector<std::string> bodies;   ///< what came behind each of them

    [[nodiscard]] static Handler answer(std::string head, std::string body = {}) {
        return [text = "HTTP/1.1 " + head + "\r\nContent-Length: " + std::to_string(body.size()) +
                       "\r\nConnection: close\r\n\r\n" + body](QTcpSocket& socket) {
            socket.write(text.data(), static_cast<qint64>(text.size()));
            socket.disconnectFromHost();
        };
    }

private:
    [[nodiscard]] static std::size_t contentLength(const std::string& head) {
        constexpr std::string_view name = "Content-Length: ";
        const auto at = head.find(name);
        return at == std::string::npos ? 0 : std::stoul(head.substr(at + name.size()));
    }

    void serve(QTcpSocket& socket) {
        connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
        connect(&socket, &QTcpSocket::readyRead, this, [this, &socket, head = std::string()]() mutable {
            head += socket.readAll().toStdString();
            const auto end = head.find("\r\n\r\n");
            if (end == std::string::npos || head.size() < end + 4 + contentLength(head))
                return;
            bodies.push_back(head.substr(end + 4));
            head.resize(end + 4);
            requests.push_back(head);
            const auto start = head.find(' ') + 1;
            const auto handler = handlers.find(head.substr(start, head.find_first_of(" ?", start) - start));
            (handler == handlers.end() ? answer("404 Not Found") : handler->second)(socket);
        });
    }
};

} // namespace tessivo
