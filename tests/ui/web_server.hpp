// web_server: a server on this machine that answers from a table, for tests of the update check.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <map>
#include <string>
#include <vector>

namespace kvt {

/// Runs in the event loop of the test. A path that is not in the table is answered with 404.
class web_server {
  public:
    web_server() {
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { greet(); });
        server_.listen(QHostAddress::LocalHost, 0);
    }

    std::string address() const {
        return "http://127.0.0.1:" + std::to_string(server_.serverPort());
    }
    /// Connections are refused from now on.
    void close() { server_.close(); }

    std::map<std::string, std::string> files;         ///< path -> bytes
    std::map<std::string, std::string> redirections;  ///< path -> the address that is told
    std::vector<std::string> paths;                   ///< that were asked for, in order
    bool is_silent = false;                           ///< it answers nothing

  private:
    void greet() {
        QTcpSocket* socket = server_.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            received_[socket] += socket->readAll().toStdString();
            if (received_[socket].ends_with("\r\n\r\n") && !is_silent) {
                answer(*socket, received_[socket]);
            }
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

    /// "GET PATH HTTP/1.1"
    void answer(QTcpSocket& socket, const std::string& request) {
        const std::string path = request.substr(4, request.find(' ', 4) - 4);
        paths.push_back(path);
        socket.write(QByteArray::fromStdString(answer_to(path)));
        socket.disconnectFromHost();
    }

    std::string answer_to(const std::string& path) const {
        const std::string end = "\r\nConnection: close\r\n";
        if (const auto other = redirections.find(path); other != redirections.end()) {
            return "HTTP/1.1 302 Found\r\nLocation: " + other->second + "\r\nContent-Length: 0" +
                   end + "\r\n";
        }
        const auto file = files.find(path);
        const bool found = file != files.end();
        const std::string bytes = found ? file->second : "no such file";
        return std::string("HTTP/1.1 ") + (found ? "200 OK" : "404 Not Found") +
               "\r\nContent-Length: " + std::to_string(bytes.size()) + end + "\r\n" + bytes;
    }

    QTcpServer server_;
    std::map<QTcpSocket*, std::string> received_;
};

}  // namespace kvt
