#include "brunvik/foundation/error_trap.h"

#include <string>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/errors.h"

namespace brunvik::detail {

namespace {

// Keeps an error as the last failure, calls `told(text)` for it and gives its number; a Stop has been told already.
template <class Told>
Long classify(Told&& told) noexcept {
  try {
    throw;
  } catch (const Stop& stop) {
    return stop.result;
  } catch (...) {
    Long number = 0;
    ado::see_current_error([&](const ado::SeenError& error) {
      number = error.number;
      keep_failure(error);
      told(error.text);
    });
    return number;
  }
}

}  // namespace

Long result_of_current_exception() noexcept {
  return classify([](std::string_view) {});
}

Long notify_of_current_exception(std::string_view tag, std::string_view title) noexcept {
  return classify([&](std::string_view text) { ado::show_notice(title, std::string(tag).append(text)); });
}

}  // namespace brunvik::detail
