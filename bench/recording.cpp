#include "bench/recording.h"

#include "bench/books.h"

namespace brunvik::bench {

RecordedLife record(const ado::ConnectionReference& connection, MakeLife make, unsigned seed) {
  const auto recording = std::make_shared<Recording>(connection);
  start_session(recording);
  const Life life = make(recording, seed, Numbering::given);
  life.begin();
  RecordedLife recorded;
  for (const Step& step : life.steps) {
    run(step);
    recorded.push_back({step.verb, recording->take()});
  }
  start_session(connection);
  return recorded;
}

}  // namespace brunvik::bench
