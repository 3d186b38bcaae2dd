#include "tests/support/faults/document.h"

#include <stdexcept>

namespace brunvik::test {

namespace {

using Make = Document (*)();

std::vector<Make>& collected() {
  static std::vector<Make> makes;
  return makes;
}

}  // namespace

Rehearsed::Rehearsed(Make document) { collected().push_back(document); }

const std::vector<Document>& rehearsed_documents() {
  static const std::vector<Document> documents = [] {
    std::vector<Document> made;
    for (const Make make : collected()) made.push_back(make());
    for (Document& document : made) {
      for (Verb& verb : document.verbs) verb.class_name = document.class_name;
    }
    return made;
  }();
  return documents;
}

const Document& rehearsed_document(const std::string& class_name) {
  for (const Document& document : rehearsed_documents()) {
    if (document.class_name == class_name) return document;
  }
  throw std::logic_error(class_name + " is not rehearsed: it belongs into a file of tests/support/faults");
}

const Verbs& rehearsed_verbs() {
  static const Verbs verbs = [] {
    Verbs all;
    for (const Document& document : rehearsed_documents()) {
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
