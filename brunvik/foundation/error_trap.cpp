#include "brunvik/foundation/error_trap.h"

#include <new>
#include <string>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/errors.h"

namespace brunvik::detail {

namespace {

// Calls `seen(number, text)` for an error and gives its number; a Stop has been told already.
template <class Seen>
Long classify(Seen&& seen) noexcept {
  try {
    throw;
  } catch (const Stop& stop) {
    return stop.result;
  } catch (const ado::RuntimeError& failure) {
    seen(failure.description());
    return failure.number();
  } catch (const std::bad_alloc&) {
    seen(ado::error_text(ado::error::out_of_memory));
    return ado::error::out_of_memory;
  } catch (...) {
    // Nothing in the library throws anything else, but a host's connection or clock may.
    seen(ado::error_text(ado::error::internal));
    return ado::error::internal;
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
