// A syntax tree written back as T-SQL, on one line, in one spelling: keywords small, one blank between
// words, names and literals as they were. What is written parses to the same tree again.
#pragma once

#include "embedded/syntax/Tree.h"

#include <string>

namespace kavelin::embedded {

enum class TextForm {
    AsWritten,   // brackets where the text had them
    AllBrackets  // brackets around each operator and nowhere else: shows what binds to what
};

std::string WriteText(const Statement& statement, TextForm form = TextForm::AsWritten);
std::string WriteText(const Query& query, TextForm form = TextForm::AsWritten);
std::string WriteText(const Expr& expression, TextForm form = TextForm::AsWritten);

}  // namespace kavelin::embedded
