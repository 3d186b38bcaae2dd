#include "host/story.h"

#include <algorithm>
#include <sstream>

namespace brunvik::host {

namespace {

constexpr std::string_view story_ending = ".story";
constexpr std::string_view part_ending = ".part";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// Reads a file and what it includes into a story.
class Reader {
 public:
  explicit Reader(Story& story) : story_(story) {}

  void read(const std::string& file, std::string_view text) {
    std::istringstream lines{std::string(text)};
    std::size_t number = 0;
    bool inside_statement = false;
    for (std::string line; std::getline(lines, line);) {
      const std::string place = file + ":" + std::to_string(++number);
      const std::string_view words = trimmed(line);
      if (inside_statement && !words.empty()) {
        std::string& statement = story_.tables.back().statement;
        statement.append(statement.empty() ? "" : " ").append(words);
        continue;
      }
      inside_statement = words.starts_with(table_mark);
      if (words.empty() || words.starts_with('#')) continue;
      if (inside_statement) {
        add_table(place, trimmed(words.substr(table_mark.size())));
      } else if (words.starts_with(include_mark)) {
        include(place, trimmed(words.substr(include_mark.size())));
      } else if (words.starts_with('{') || words.starts_with('=')) {
        story_.lines.push_back({place, std::string(words)});
      } else if (story_.title.empty() && number == 1) {
        story_.title = words;
      } else {
        throw UnreadableStory(place + ": a line begins with {, =, #, @table or @include");
      }
    }
  }

 private:
  static constexpr std::string_view table_mark = "@table ";
  static constexpr std::string_view include_mark = "@include ";

  void add_table(const std::string& place, std::string_view words) {
    const auto colon = words.find(':');
    if (colon == std::string_view::npos) throw UnreadableStory(place + ": a table is @table TITLE: HEADINGS");
    StoryTable table;
    table.title = trimmed(words.substr(0, colon));
    std::istringstream headings{std::string(words.substr(colon + 1))};
    for (std::string heading; headings >> heading;) {
      if (heading == "|") {
        table.keys = table.headings.size();
      } else {
        table.headings.push_back(heading);
      }
    }
    if (table.keys == 0)
      throw UnreadableStory(place + ": a | stands behind the headings that tell one row from another");
    story_.tables.push_back(std::move(table));
  }

  void include(const std::string& place, std::string_view part) {
    const std::string name = std::string(part).append(part_ending);
    const auto files = story_files();
    const auto file = std::ranges::find(files, name, &StoryFile::name);
    if (file == files.end()) throw UnreadableStory(place + ": there is no " + name);
    if (++included_ > most_included) throw UnreadableStory(place + ": " + name + " includes itself");
    read(name, file->text);
  }

  static constexpr int most_included = 20;
  Story& story_;
  int included_ = 0;
};

}  // namespace

std::vector<Story> stories() {
  std::vector<Story> list;
  for (const StoryFile& file : story_files()) {
    if (!file.name.ends_with(story_ending)) continue;
    list.push_back(read_story(file.name.substr(0, file.name.size() - story_ending.size()), file.text));
  }
  std::ranges::sort(list, {}, [](const Story& story) { return std::pair(story.name != default_story, story.name); });
  return list;
}

Story read_story(std::string_view name, std::string_view text) {
  Story story;
  story.name = name;
  Reader(story).read(story.name + std::string(story_ending), text);
  if (story.title.empty()) throw UnreadableStory(story.name + ": the first line says what the story tells");
  return story;
}

}  // namespace brunvik::host
