#include "ui/shell/hand_over.hpp"

#include "base/path_text.hpp"
#include "ui/shell/handover_words.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"
#include "ui/shell/session.hpp"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

#include <memory>
#include <vector>

namespace kvt {

namespace {

/// Between two looks at a lock.
constexpr int TURN_POLL_MS = 20;
/// Of a digest, as hexadecimal digits: a socket's path must be short.
constexpr int DIGEST_LENGTH = 16;

/// A program of another screen can't bring its window to this one.
QByteArray digest_of_place(const std::filesystem::path& folder) {
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(folder, ignored);
    QCryptographicHash digest(QCryptographicHash::Sha256);
    digest.addData(QByteArray::fromStdString(utf8_of_path(whole)));
    for (const char* screen : {"WAYLAND_DISPLAY", "DISPLAY"}) {
        digest.addData("\n" + qgetenv(screen));
    }
    return digest.result().toHex().left(DIGEST_LENGTH);
}

int remaining_ms(const QDeadlineTimer& limit) {
    return static_cast<int>(limit.remainingTime());
}

/// A running program that was asked, or told; its answer is still to come.
using talk = std::unique_ptr<QLocalSocket>;

/// Null when no program listens there.
talk talk_with(const QString& path, const QDeadlineTimer& limit) {
    auto other = std::make_unique<QLocalSocket>();
    other->connectToServer(session_socket(path));
    return other->waitForConnected(remaining_ms(limit)) ? std::move(other) : nullptr;
}

void say(QLocalSocket& other, const QByteArrayList& words) {
    other.write(line_of_words(words));
    other.flush();
}

/// Nothing when it does not come in time.
std::optional<handover_answer> heard_answer(QLocalSocket& other, const QDeadlineTimer& limit) {
    while (!other.canReadLine()) {
        if (!other.waitForReadyRead(remaining_ms(limit))) {
            return std::nullopt;
        }
    }
    return answer_of_word(words_of_line(other.readLine()).value(0));
}

/// The programs that listen, each asked about the project. All are asked before the first answer
/// is waited for, so that one that hangs costs its time once.
std::vector<talk> ask_all(const QString& place, const QByteArray& project,
                          const QDeadlineTimer& limit) {
    std::vector<talk> asked;
    for (int number = 1; number <= MOST_HANDOVER_SERVERS; ++number) {
        if (talk other = talk_with(handover_socket(place, number), limit)) {
            say(*other, {ASKED, project});
            asked.push_back(std::move(other));
        }
    }
    return asked;
}

/// Who shows the project, else the first that takes it; null for nobody.
talk choose_program(std::vector<talk> asked, const QDeadlineTimer& limit) {
    talk taker;
    for (talk& other : asked) {
        const std::optional<handover_answer> answer = heard_answer(*other, limit);
        if (answer == handover_answer::shows) {
            return std::move(other);
        }
        if (answer == handover_answer::takes && taker == nullptr) {
            taker = std::move(other);
        }
    }
    return taker;
}

}  // namespace

QString handover_place(const std::filesystem::path& folder) {
    const QString own = session_folder();
    return own.isEmpty() ? QString() : own + "/kavetta-" + digest_of_place(folder);
}

QString handover_socket(const QString& place, int number) {
    return place + "-" + QString::number(number);
}

std::optional<file_lock> wait_for_handover_turn(const QString& place) {
    const QDeadlineTimer limit(HANDOVER_ANSWER_MS);
    const std::filesystem::path path = path_of_qt(place + "-turn.lock");
    std::optional<file_lock> turn;
    while (!place.isEmpty() && !turn && !limit.hasExpired()) {
        turn = file_lock::take(path);
        if (!turn) {
            QThread::msleep(TURN_POLL_MS);
        }
    }
    return turn;
}

bool hand_over(const QString& place, const std::string& project) {
    if (place.isEmpty()) {
        return false;
    }
    const QByteArray path = QByteArray::fromStdString(project);
    const QDeadlineTimer asking(HANDOVER_ANSWER_MS);
    const talk chosen = choose_program(ask_all(place, path, asking), asking);
    if (chosen == nullptr) {
        return false;
    }
    let_others_come_to_front();
    say(*chosen, {HANDED, path, qgetenv("XDG_ACTIVATION_TOKEN")});
    const auto answer = heard_answer(*chosen, QDeadlineTimer(HANDOVER_ANSWER_MS));
    return answer && *answer != handover_answer::declines;
}

}  // namespace kvt
