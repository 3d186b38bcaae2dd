// The lives of the families' documents, by the names of their classes and members.
#pragma once

#include <string>
#include <vector>

#include "bench/families.h"
#include "bench/life.h"

namespace brunvik::bench {

Life family_life(const FamilyDocument& document, const ado::ConnectionReference& connection, unsigned seed,
                 Numbering numbering);

// All that is measured against a replay of its statements: the documents with a life of their own, and those of the
// families that say so.
const std::vector<Document>& replayed_documents();

// Lays books of a thousand bills, in which the document's own tables are filled, too.
void lay_books_for(const Document& document, const std::string& path);

// The name as a benchmark has it.
std::string with_underscores(std::string_view name);

}  // namespace brunvik::bench
