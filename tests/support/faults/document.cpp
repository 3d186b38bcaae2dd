#include "tests/support/faults/document.h"

#include <stdexcept>

#include "tests/support/faults/books.h"

namespace brunvik::test {

namespace {

using Make = RehearsedDocument (*)();

std::vector<Make>& collected() {
  static std::vector<Make> makes;
  return makes;
}

}  // namespace

void RehearsedDocument::lay_bills(const std::string& insert, const std::string& values) {
  lay_bills(insert, values, values);
}

void RehearsedDocument::lay_bills(const std::string& insert, const std::string& values,
                                  const std::string& values_of_the_second) {
  for (int place = 1; place <= 3; ++place) {
    books.emplace_back(insert).append(quoted(number(place))).append(place == 2 ? values_of_the_second : values);
  }
}

void RehearsedDocument::lay_rows(const std::string& insert, const std::vector<std::string>& rows) {
  const std::string begin = insert + quoted(bill());
  for (const std::string& row : rows) books.push_back(begin + row);
}

Rehearsed::Rehearsed(Make document) { collected().push_back(document); }

const std::vector<RehearsedDocument>& rehearsed_documents() {
  static const std::vector<RehearsedDocument> documents = [] {
    std::vector<RehearsedDocument> made;
    for (const Make make : collected()) made.push_back(make());
    for (RehearsedDocument& document : made) {
      for (Verb& verb : document.verbs) verb.class_name = document.class_name;
    }
    return made;
  }();
  return documents;
}

const RehearsedDocument& rehearsed_document(const std::string& class_name) {
  for (const RehearsedDocument& document : rehearsed_documents()) {
    if (document.class_name == class_name) return document;
  }
  throw std::logic_error(class_name + " is not rehearsed: it belongs into a file of tests/support/faults");
}

const Verbs& rehearsed_verbs() {
  static const Verbs verbs = [] {
    Verbs all;
    for (const RehearsedDocument& document : rehearsed_documents()) {
      all.insert(all.end(), document.verbs.begin(), document.verbs.end());
    }
    return all;
  }();
  return verbs;
}

std::string name_of(const Verb& verb) {
  return verb.class_name + "_" + verb.verb + (verb.remark.empty() ? "" : "_" + verb.remark);
}

}  // namespace brunvik::test
