#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "common/messages.h"
#include "shell/tag_store.h"

namespace bench {

/// A user who agrees to everything.
class Agreeing : public common::Messages {
 public:
  common::Answer Present(const common::Message&) override { return common::Answer::kYes; }
};

/// A store as full as it can be, with the tags of a sample again and again under numbers of their
/// own.
inline shell::TagStore FullStore(const shell::TagStore& sample) {
  std::vector<shell::TagRow> rows = {sample.Row(0)};
  for (int i = 0; i < shell::kMaxTags; ++i) {
    rows.push_back(sample.Row(1 + i % sample.TagCount()));
    rows.back()[shell::kTagNumberColumn] = "TAG-" + std::to_string(1000 + i);
  }
  shell::TagStore store;
  store.TakeRows(std::move(rows));
  return store;
}

inline double MillisecondsOf(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
      .count();
}

inline double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace bench
