#include "ui/shell/handover_server.hpp"

#include "ui/shell/hand_over.hpp"
#include "ui/shell/handover_words.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/session.hpp"

#include <QLocalSocket>

#include <utility>

namespace kvt {

handover_server::handover_server(const QString& place, decision decide)
    : decide_(std::move(decide)) {
    connect(&server_, &QLocalServer::newConnection, this, &handover_server::serve_next);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    for (int number = 1; number <= MOST_HANDOVER_SERVERS && !place.isEmpty(); ++number) {
        if (listen_at(handover_socket(place, number))) {
            return;
        }
    }
}

/// Who holds the lock may take away what stands in the socket's place.
bool handover_server::listen_at(const QString& path) {
    number_ = file_lock::take(path_of_qt(path + ".lock"));
    if (!number_) {
        return false;
    }
    const QString socket = session_socket(path);
    QLocalServer::removeServer(socket);
    return server_.listen(socket);
}

void handover_server::serve_next() {
    QLocalSocket* other = server_.nextPendingConnection();
    connect(other, &QLocalSocket::disconnected, other, &QObject::deleteLater);
    connect(other, &QLocalSocket::readyRead, this, [this, other] { answer_lines(*other); });
    answer_lines(*other);
}

void handover_server::answer_lines(QLocalSocket& other) {
    while (other.canReadLine()) {
        const QByteArrayList words = words_of_line(other.readLine());
        if (words.size() == 2 && words[0] == ASKED) {
            answer_question(other, words[1]);
        } else if (words.size() == 3 && words[0] == HANDED) {
            // The command that follows may wait for the user, and the other start is gone then.
            return accept_project(other, words[1], words[2]);
        }
    }
}

void handover_server::answer_question(QLocalSocket& other, const QByteArray& project) {
    other.write(line_of_words({word_of_answer(decide_(project.toStdString()))}));
    other.flush();
}

/// Nothing happens when the other start has waited too long: it has a window of its own then.
void handover_server::accept_project(QLocalSocket& other, const QByteArray& project,
                                     const QByteArray& token) {
    const handover_answer answer = decide_(project.toStdString());
    other.write(line_of_words({word_of_answer(answer)}));
    if (other.flush() && answer != handover_answer::declines) {
        emit handed_over(project.toStdString(), token);
    }
}

}  // namespace kvt
