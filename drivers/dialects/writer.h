// Puts the words of a statement together.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "drivers/dialects/characters.h"
#include "drivers/dialects/cutter.h"

namespace brunvik::dialects {

class Writer {
 public:
  // Sets apart what would otherwise become another word, or the start of a comment.
  void write(std::string_view words, bool blank_before) {
    const bool touching =
        !text_.empty() && !words.empty() &&
        ((is_word(text_.back()) && (is_word(words.front()) || words.front() == '?' || is_mark(words.front()))) ||
         (text_.back() == '-' && words.front() == '-') || (text_.back() == '/' && words.front() == '*'));
    if ((blank_before || touching) && !text_.empty()) text_ += ' ';
    text_ += words;
  }

  std::string take() { return std::move(text_); }

 private:
  std::string text_;
};

}  // namespace brunvik::dialects
