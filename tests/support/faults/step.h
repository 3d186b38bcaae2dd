// What a verb does, statement by statement, and what comes of it when that statement fails.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/rehearsed_connection.h"

namespace brunvik::test {

struct Step {
  // How the statement begins, its road in front, and a word that it holds further on.
  std::string begins = {};
  std::string holds = {};

  // The notice of its failure as "title|text" without the error's text; empty where none is shown.
  std::string notice = {};

  // A notice behind it whose text is its own, whole.
  std::string further_notice = {};

  // Whether the verb ends there, with this result; else it goes on without the steps of these names.
  bool ends = true;
  Long result = rehearsed_number;
  std::vector<std::string> skips = {};

  std::string name = {};
};

using Steps = std::vector<Step>;

inline Step named(std::string name, Step step) {
  step.name = std::move(name);
  return step;
}

// The verb ends in silence with the error's number.
inline Step ends(std::string begins) { return {.begins = std::move(begins)}; }

// The verb ends, and a worker tells so under its tag.
inline Step ends_telling(std::string tag, std::string begins) {
  return {.begins = std::move(begins), .notice = "提示信息|" + tag};
}

// A procedure tells its failure, and the verb goes on as if it had done its work.
inline Step goes_on(std::string tag, std::string begins, std::vector<std::string> skips = {}) {
  return {
      .begins = std::move(begins), .notice = "提示信息|" + tag, .ends = false, .result = 0, .skips = std::move(skips)};
}

inline Step holding(std::string word, Step step) {
  step.holds = std::move(word);
  return step;
}

inline Step ending_with(Long result, Step step) {
  step.ends = true;
  step.result = result;
  return step;
}

template <class Element>
std::vector<Element> operator+(std::vector<Element> left, const std::vector<Element>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

}  // namespace brunvik::test
