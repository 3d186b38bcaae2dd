// The one error trap. The public boundary lets no exception through: a verb or a module procedure is a body in a trap,
// and the trap turns what was thrown into the result.
//
//   Long clsOthersInBill::Audit() noexcept { return trap([&] { ... }); }
//
// A body is straight code. Nothing that it did before a failure is undone: the statements that ran stay.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "brunvik/ado/types.h"
#include "brunvik/foundation/last_failure.h"

namespace brunvik {

// Thrown to end a verb with a result that needs no further word: none of the traps on the way shows a notice for it.
struct Stop {
  Long result;
};

inline void stop_unless_done(Long result) {
  if (result != 0) throw Stop{result};
}

namespace detail {

// The result of the exception at hand, which becomes the last failure if it isn't a Stop. With a tag, the Error Notice
// is shown: the tag directly followed by the error's text, under the title given.
Long result_of_current_exception() noexcept;
Long notify_of_current_exception(std::string_view tag, std::string_view title) noexcept;

}  // namespace detail

inline constexpr std::string_view notice_title = "提示信息";

// Runs the body: 0, or the number of the error that stopped it. Shows nothing.
template <class Body>
Long trap(Body&& body) noexcept {
  const detail::WithinCall call;
  try {
    std::forward<Body>(body)();
    return 0;
  } catch (...) {
    return detail::result_of_current_exception();
  }
}

// The same, and an error shows the Error Notice.
template <class Body>
Long trap(std::string_view tag, Body&& body, std::string_view title = notice_title) noexcept {
  const detail::WithinCall call;
  try {
    std::forward<Body>(body)();
    return 0;
  } catch (...) {
    return detail::notify_of_current_exception(tag, title);
  }
}

// The same with a tag that is put together for the notice alone.
template <std::invocable MakeTag, class Body>
Long trap(MakeTag&& make_tag, Body&& body) noexcept {
  const detail::WithinCall call;
  try {
    std::forward<Body>(body)();
    return 0;
  } catch (...) {
    return detail::notify_of_current_exception(std::forward<MakeTag>(make_tag)(), notice_title);
  }
}

// With a tag or, where that is empty, without.
template <class Body>
Long trap_telling(std::string_view tag, Body&& body) noexcept {
  return tag.empty() ? trap(std::forward<Body>(body)) : trap(tag, std::forward<Body>(body));
}

// A worker with a tag of its own inside of a verb: an error shows the notice here, once, and ends the verb.
template <class Tag, class Body>
void worker(Tag&& tag, Body&& body) {
  stop_unless_done(trap(std::forward<Tag>(tag), std::forward<Body>(body)));
}

}  // namespace brunvik
