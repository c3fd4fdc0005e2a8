// handover_server: a running program that answers later starts of it, which hand it their projects.
#pragma once

#include "app/desk/handed_project.hpp"
#include "base/file_lock.hpp"

#include <QLocalServer>
#include <QObject>

#include <functional>
#include <optional>
#include <string>

class QLocalSocket;

namespace kvt {

/// Listens at a place of hand_over.hpp as long as it lives, under the first number that no running
/// program has. A socket that a killed program has left is taken away.
class handover_server : public QObject {
    Q_OBJECT

  public:
    using decision = std::function<handover_answer(const std::string& project)>;

    handover_server(const QString& place, decision decide);

    /// False when nobody can reach it, e.g. because the system has no folder for sockets.
    bool is_listening() const { return server_.isListening(); }

  signals:
    /// The other start has ended in favour of this program. Its token lets a window come to the
    /// front where the desktop asks for one; it may be empty.
    void handed_over(const std::string& project, const QByteArray& token);

  private:
    bool listen_at(const QString& path);
    void serve_next();
    void answer_lines(QLocalSocket& other);
    void answer_question(QLocalSocket& other, const QByteArray& project);
    void accept_project(QLocalSocket& other, const QByteArray& project, const QByteArray& token);

    decision decide_;
    std::optional<file_lock> number_;
    QLocalServer server_;
};

}  // namespace kvt
