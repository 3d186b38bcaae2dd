#include "bench/counting.h"

#include <valgrind/callgrind.h>

namespace brunvik::bench {

bool is_counting() noexcept { return RUNNING_ON_VALGRIND != 0; }
void start_counting() noexcept { CALLGRIND_START_INSTRUMENTATION; }
void stop_counting() noexcept { CALLGRIND_STOP_INSTRUMENTATION; }
void begin_piece() noexcept { CALLGRIND_TOGGLE_COLLECT; }
void end_piece() noexcept { CALLGRIND_TOGGLE_COLLECT; }
void write_count(const std::string& name) noexcept { CALLGRIND_DUMP_STATS_AT(name.c_str()); }

}  // namespace brunvik::bench
