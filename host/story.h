// The stories of the demo: what a company does, told in the lines of `brunvik run`.
//
// A story is one file, host/stories/NAME.story, and the build finds it by itself. Its first line says what it tells,
// in one sentence for `brunvik demo --list`. The others are
//
//     # for those who read the file
//     = 第一批货：打印机 10 台                            a sentence for those who watch
//     {"do":"new","as":"进货入库","class":"clsPurchaseInBill"}   a line of `brunvik run`
//     @include company                                  the lines of host/stories/company.part, in this place
//     @table 库存: 仓库 商品 | 单位 >现存               a table to show, with its statement in the lines below it,
//     select Warehouse.WName,goods.Gname,...            up to an empty one
//
// An object is called as the reader knows the document, since its name stands above what a verb did. `$` and the name
// of an object, as a whole text in a line, stand for the number that it proposed last (its verb Get...NewId); `$now`
// stands for the time. So a row is entered by {"BillId":"$进货入库","Rownum":1,...}.
//
// After each verb the rows of the tables show that are new or other than before. The headings in front of `|` tell one
// row from another; a heading that begins with `>` stands, with its column, at the right. A verb whose result isn't 0
// ends the story: stories are about what goes well.
#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brunvik::host {

// A table of the books as its readers see it.
struct StoryTable {
  std::string title;
  std::vector<std::string> headings;
  // How many of the first columns tell one row from another.
  std::size_t keys = 0;
  std::string statement;
};

struct StoryLine {
  // Where it stands, for the one who wrote it: "counter-sale.story:12".
  std::string place;
  // A line of `brunvik run`, or what is said after "= ".
  std::string text;

  bool is_said() const { return text.starts_with('='); }
};

struct Story {
  std::string name;
  std::string title;
  std::vector<StoryTable> tables;
  std::vector<StoryLine> lines;
};

// A file of host/stories that can't be understood; says where it stands and why.
class UnreadableStory : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A file of host/stories, as it was when the command was built.
struct StoryFile {
  std::string_view name;
  std::string_view text;
};
std::span<const StoryFile> story_files();

inline constexpr std::string_view default_story = "counter-sale";

// All stories: the default one first, then by their names.
std::vector<Story> stories();

// The story in a text of the form above. Throws an UnreadableStory.
Story read_story(std::string_view name, std::string_view text);

}  // namespace brunvik::host
