#include "ui/shell/handover_words.hpp"

#include <array>
#include <utility>

namespace kvt {

namespace {

constexpr std::array<std::pair<handover_answer, const char*>, 3> ANSWERS = {{
    {handover_answer::shows, "shows"},
    {handover_answer::takes, "takes"},
    {handover_answer::declines, "declines"},
}};

}  // namespace

QByteArray line_of_words(const QByteArrayList& words) {
    QByteArrayList encoded;
    for (const QByteArray& word : words) {
        encoded.append(word.toPercentEncoding());
    }
    return encoded.join(' ') + '\n';
}

QByteArrayList words_of_line(const QByteArray& line) {
    QByteArrayList words;
    const QByteArray text = line.endsWith('\n') ? line.chopped(1) : line;
    for (const QByteArray& word : text.split(' ')) {
        words.append(QByteArray::fromPercentEncoding(word));
    }
    return words;
}

QByteArray word_of_answer(handover_answer answer) {
    for (const auto& [known, word] : ANSWERS) {
        if (known == answer) {
            return word;
        }
    }
    return {};
}

std::optional<handover_answer> answer_of_word(const QByteArray& word) {
    for (const auto& [answer, known] : ANSWERS) {
        if (word == known) {
            return answer;
        }
    }
    return std::nullopt;
}

}  // namespace kvt
