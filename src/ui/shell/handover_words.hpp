// handover_words: the lines that two starts of the program send each other.
#pragma once

#include "app/desk/handed_project.hpp"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

namespace kvt {

/// "asked PROJECT": what would happen with it? Answered with the word of a handover_answer.
inline constexpr const char* ASKED = "asked";
/// "handed PROJECT TOKEN": let it happen. Answered likewise.
inline constexpr const char* HANDED = "handed";

/// Words with a blank between them, each percent-encoded in UTF-8 so that any path is one word.
QByteArray line_of_words(const QByteArrayList& words);
QByteArrayList words_of_line(const QByteArray& line);

QByteArray word_of_answer(handover_answer answer);
/// Nothing for any other word.
std::optional<handover_answer> answer_of_word(const QByteArray& word);

}  // namespace kvt
