#include "tests/support/faults/document.h"

#include <stdexcept>

namespace brunvik::test {

namespace {

using Make = RehearsedDocument (*)();

std::vector<Make>& collected() {
  static std::vector<Make> makes;
  return makes;
}

}  // namespace

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
