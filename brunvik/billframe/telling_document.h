// The documents whose workers tell the user of their own errors, each under its tag.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/document.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

// The tags of a document's workers. One without a tag leaves its error to the verb.
struct WorkerTags {
  std::string_view save_bill, save_draft;
  std::string_view insert_header = {}, update_header = {};
  std::string_view save_rows = {};
  std::string_view read_header = {}, read_rows = {};
  std::string_view remove_rows = {}, remove_header = {};
  std::string_view find_last = {};
  std::string_view find_next = {}, find_previous = {};
};

// The workers of Base, each under its tag.
template <class Base>
class TellingDocument : public Base {
 protected:
  using typename Base::Saving;

  virtual const WorkerTags& tags() const = 0;

  // A tag as the notice shows it, put together for the notice alone.
  virtual std::string shown(std::string_view tag) const { return std::string(tag); }

  // Runs what a document does in place of a worker of Base under that worker's tag.
  template <class Body>
  void telling(std::string_view tag, Body&& body) const {
    if (tag.empty()) return body();
    worker([&] { return shown(tag); }, body);
  }

  void save_header(Saving saving) override {
    telling(saving == Saving::draft ? tags().save_draft : tags().save_bill, [&] { Base::save_header(saving); });
  }
  void insert_header(Long status) override {
    telling(tags().insert_header, [&] { Base::insert_header(status); });
  }
  void update_header(Long status) override {
    telling(tags().update_header, [&] { Base::update_header(status); });
  }
  void save_rows() override {
    telling(tags().save_rows, [&] { Base::save_rows(); });
  }
  void read_header() override {
    telling(tags().read_header, [&] { Base::read_header(); });
  }
  void read_rows() override {
    telling(tags().read_rows, [&] { Base::read_rows(); });
  }
  void remove_rows() override {
    telling(tags().remove_rows, [&] { Base::remove_rows(); });
  }
  void remove_header() override {
    telling(tags().remove_header, [&] { Base::remove_header(); });
  }
  void find_last(std::string& last, std::string_view series) override {
    telling(tags().find_last, [&] { Base::find_last(last, series); });
  }
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override {
    telling(next ? tags().find_next : tags().find_previous, [&] { Base::find_near(current, near, next, series); });
  }
};

}  // namespace brunvik
