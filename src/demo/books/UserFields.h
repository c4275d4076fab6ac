// The user fields that a company fills on some of its documents. Ledger rows show those of their document, so
// the values follow from its identifiers alone.
#pragma once

#include "demo/books/Document.h"
#include "frame/Value.h"

#include <cstdint>

namespace kavelin::demo {

// A number that looks random and is always the same for the same identifier and purpose.
std::uint64_t Mixed(std::int64_t identifier, std::uint64_t purpose);

// About a fifth of the documents; a document without an identifier has none.
bool HasUserFields(const Document& document);

// Of the head. Null where it has none.
Value HeadText(const Document& document);    // cDefine1
Value HeadDay(const Document& document);     // cDefine4
Value HeadNumber(const Document& document);  // cDefine7
Value HeadCount(const Document& document);   // cDefine15

// Of a line. Null where its head has none and where `line` is 0.
Value LineText(const Document& document, std::int32_t line);    // cDefine22
Value LineNumber(const Document& document, std::int32_t line);  // cDefine26
Value LineCount(const Document& document, std::int32_t line);   // cDefine34
Value LineDay(const Document& document, std::int32_t line);     // cDefine36

}  // namespace kavelin::demo
