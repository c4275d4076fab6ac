// The first stage: text in, tokens out.
#pragma once

#include "embedded/syntax/Token.h"

#include <string_view>
#include <vector>

namespace kavelin::embedded {

// The tokens of a batch; the last one is of the kind End. Comments count as blanks.
//
// A comment must begin on a line of its own. Reports paste values into their statements without doubling
// quotes; a value that ends its literal early must not turn what follows it into a comment.
//
// Throws SqlError for bad UTF-8 (102), a literal or bracket without its end (105), a comment without its
// end (113), a name that is empty (1038) or too long (103), and signs that no statement holds (102).
std::vector<Token> Tokenize(std::string_view text);

}  // namespace kavelin::embedded
