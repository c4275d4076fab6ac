// LIKE: without regard to case, trailing blanks count, and brackets are part of the pattern.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/write/Scratch.h"

#include <string>
#include <string_view>

namespace kavelin::embedded {

// A test of `operand` against a pattern known by its text. The result is NULL for a NULL operand unless
// `nullIsFalse`, where false serves as well.
std::string WriteLike(const std::string& operand, const TextFacts& facts, std::string_view pattern,
                      bool nullIsFalse);

// Against a pattern that the rows give. Brackets in it are an error.
std::string WriteLikeExpression(const std::string& operand, const std::string& pattern, Scratch& scratch);

}  // namespace kavelin::embedded
