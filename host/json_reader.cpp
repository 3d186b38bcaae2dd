// Reads JSON in time that grows with its length alone. The container that keeps members in their order looks each new
// one up among all before it, which takes minutes for some hundred thousand; here they are appended, and names that
// came twice are sorted out once at the end of an object.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <numeric>
#include <stdexcept>
#include <utility>
#include <vector>

#include "host/json.h"
#include "host/refusals.h"

namespace brunvik::host {

namespace {

// Far deeper than any line has to be, and far from what would exhaust the stack where JSON is walked.
constexpr std::size_t deepest = 64;

// "[json.exception.parse_error.101] parse error at line 1, column 5: ..." without what isn't about the text: its line
// is always the first.
std::string reason_in(std::string_view message) {
  if (const auto end = message.find("] "); end != std::string_view::npos) message.remove_prefix(end + 2);
  for (const std::string_view start : {"parse error at line 1, ", "parse error: "}) {
    if (message.starts_with(start)) message.remove_prefix(start.size());
  }
  return shortened(message);
}

// A name that came twice has its last value, at its first place.
void keep_last_values(Json::object_t& object) {
  // By its positions, where the object itself goes by names.
  Json::object_t::Container& members = object;
  std::vector<std::size_t> order(members.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t left, std::size_t right) { return members[left].first < members[right].first; });
  std::vector<bool> dropped(members.size());
  bool any = false;
  for (std::size_t place = 0, first = 0; place < order.size(); ++place) {
    if (members[order[first]].first != members[order[place]].first) first = place;
    if (first == place) continue;
    members[order[first]].second = std::move(members[order[place]].second);
    dropped[order[place]] = any = true;
  }
  if (!any) return;
  Json::object_t::Container kept;
  for (std::size_t place = 0; place < members.size(); ++place) {
    if (!dropped[place]) kept.emplace_back(members[place].first, std::move(members[place].second));
  }
  members.swap(kept);
}

class Reader {
 public:
  Json take() { return std::move(root_); }

  bool null() { return put(nullptr); }
  bool boolean(bool value) { return put(value); }
  bool number_integer(Json::number_integer_t value) { return put(value); }
  bool number_unsigned(Json::number_unsigned_t value) { return put(value); }
  bool number_float(Json::number_float_t value, const std::string&) { return put(value); }
  bool string(std::string& value) { return put(std::move(value)); }
  bool binary(Json::binary_t& value) { return put(std::move(value)); }

  bool start_object(std::size_t) { return open(Json::object()); }
  bool key(std::string& name) {
    members().emplace_back(std::move(name), nullptr);
    return true;
  }
  bool end_object() {
    if (members().size() > 1) keep_last_values(members());
    return close();
  }
  bool start_array(std::size_t) { return open(Json::array()); }
  bool end_array() { return close(); }

  static bool parse_error(std::size_t, const std::string&, const Json::exception& failure) {
    throw std::runtime_error("it is no JSON: " + reason_in(failure.what()));
  }

 private:
  Json::object_t& members() { return open_.back()->get_ref<Json::object_t&>(); }

  Json& place(Json value) {
    if (open_.empty()) return root_ = std::move(value);
    if (open_.back()->is_array()) return open_.back()->emplace_back(std::move(value));
    return members().back().second = std::move(value);
  }
  bool put(Json value) {
    place(std::move(value));
    return true;
  }
  bool open(Json container) {
    if (open_.size() >= deepest) throw std::runtime_error("it is nested too deeply");
    open_.push_back(&place(std::move(container)));
    return true;
  }
  bool close() {
    open_.pop_back();
    return true;
  }

  Json root_ = Json::object();
  // What is open, from the outermost in. Each is the last of the one before it, which gets no more until it is closed.
  std::vector<Json*> open_;
};

}  // namespace

Json parse_object(std::string_view text) {
  Reader reader;
  Json::sax_parse(text, &reader);
  Json parsed = reader.take();
  if (!parsed.is_object()) throw std::runtime_error("it is no JSON object");
  return parsed;
}

}  // namespace brunvik::host
