#include "bench/recording.h"

#include <stdexcept>

#include "bench/books.h"

namespace brunvik::bench {

RecordedLife record(const ado::ConnectionReference& connection, const MakeLife& make, unsigned seed) {
  const auto recording = std::make_shared<Recording>(connection);
  start_session(recording);
  RecordedLife recorded;
  const Life life = make(recording, seed, Numbering::given);
  live(life, [&](const Step& step) {
    run(step);
    recorded.push_back({step.verb, recording->take(), step.timed});
  });
  if (life.end) recorded.push_back({"", recording->take(), false});
  start_session(connection);
  return recorded;
}

std::vector<RecordedLife> record_lives(const ado::ConnectionReference& connection, const MakeLife& make,
                                       unsigned lives) {
  const auto record_all = [&] {
    std::vector<RecordedLife> recorded;
    for (unsigned seed = 0; seed < lives; ++seed) recorded.push_back(record(connection, make, seed));
    return recorded;
  };
  record_all();
  std::vector<RecordedLife> recorded = record_all();
  if (record_all() != recorded) throw std::runtime_error("a life sends other statements each time");
  return recorded;
}

}  // namespace brunvik::bench
