#include "host/demo.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>

#include "brunvik/ado/clock.h"
#include "host/database.h"
#include "host/demo_books.h"
#include "host/table.h"

namespace brunvik::host {

namespace {

class Player {
 public:
  Player(const Story& story, Interpreter& interpreter, std::ostream& out)
      : interpreter_(interpreter), out_(out), books_(interpreter, out, story.tables) {
    texts_["now"] = ado::timestamp_text(ado::now());
  }

  void play(const StoryLine& line) {
    if (line.is_said()) {
      out_ << "\n" << line.text << '\n';
      return;
    }
    const Json said = filled_in(parse_object(line.text));
    const std::string what = text_member(said, "do", "");
    const Json answer = ask(interpreter_, said);
    // What the host writes itself was there before the verb that follows.
    if (what == "sql") books_.look();
    if (what == "call") show_call(said, answer);
  }

 private:
  // The line with the numbers and the time in the places of their names.
  Json filled_in(Json value) const {
    if (value.is_structured()) {
      for (Json& part : value) part = filled_in(std::move(part));
    } else if (value.is_string() && value.get_ref<const std::string&>().starts_with('$')) {
      const std::string name = value.get<std::string>().substr(1);
      const auto text = texts_.find(name);
      if (text == texts_.end()) throw UnreadableStory("nothing has proposed the number $" + name);
      return text->second;
    }
    return value;
  }

  void show_call(const Json& said, const Json& answer) {
    const std::string& object = text_member(said, "on");
    const std::string& verb = text_member(said, "verb");
    if (verb.ends_with("NewId")) texts_[object] = answer.at("args").at(0).get<std::string>();
    const auto number = texts_.find(object);
    const Json& result = answer.at("result");
    out_ << "\n== " << object << (number == texts_.end() ? "" : " " + number->second) << "  " << verb << ": "
         << result.dump() << '\n';
    if (const Json* trace = find(answer, "trace")) {
      for (const Json& statement : *trace) {
        out_ << "   " << statement.at(0).get<std::string>() << ": " << statement.at(1).get<std::string>() << '\n';
      }
    }
    if (result.is_number() && result != 0) throw UnreadableStory(object + ' ' + verb + " failed: " + one_line(answer));
    books_.show_changes();
  }

  Interpreter& interpreter_;
  std::ostream& out_;
  DemoBooks books_;
  // What stands in the place of `$` and a name.
  std::map<std::string, std::string, std::less<>> texts_;
};

std::string fresh_file() {
  std::string folder = (std::filesystem::temp_directory_path() / "brunvik-demo-XXXXXX").string();
  if (!mkdtemp(folder.data())) {
    throw ado::RuntimeError(ado::error::provider_failed, "no folder can be made in the place of '" + folder + "'");
  }
  return folder + "/books.db";
}

// As a shell takes it for one word.
std::string shell_word(const std::string& text) {
  constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+=:,./@%";
  if (text.find_first_not_of(plain) == std::string::npos) return text;
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + '\'';
}

void say_what_is_next(const std::string& played, const std::string& command, std::ostream& out) {
  const std::string address = address_for_another_run(played);
  if (address.empty()) return;
  if (const std::string file = file_at(address); !file.empty()) {
    out << "\n数据库文件: " << file;
  } else {
    out << "\n数据库: " << address << (address == played ? "" : "（密码取自环境变量 BRUNVIK_PASSWORD）");
  }
  out << "\n下一步: echo '{\"do\":\"sql\",\"text\":\"select GId,CurrentQty from Inventory\"}' | " << shell_word(command)
      << " run --db " << shell_word(address) << '\n';
}

}  // namespace

void play(const Story& story, Interpreter& interpreter, std::ostream& out) {
  out << story.title << '\n';
  Player player(story, interpreter, out);
  for (const StoryLine& line : story.lines) {
    try {
      player.play(line);
    } catch (const std::exception& failure) {
      throw UnreadableStory(line.place + ": " + failure.what());
    }
  }
}

void demo(const Story& story, const DemoOptions& options, std::ostream& out) {
  const std::string address = options.address.empty() ? address_of_file(fresh_file()) : options.address;
  Interpreter interpreter(open_fresh_database(address).connection, options.settings);
  play(story, interpreter, out);
  say_what_is_next(address, options.command, out);
}

std::string list_of(const std::vector<Story>& stories) {
  Table table;
  for (const Story& story : stories) table.add({story.name, story.title});
  return table.text();
}

}  // namespace brunvik::host
