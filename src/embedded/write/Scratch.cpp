#include "embedded/write/Scratch.h"

namespace kavelin::embedded {

namespace {

constexpr std::size_t kShort = 80;  // bytes; a cast of a column with a qualified Chinese name still fits

}  // namespace

std::string Scratch::Repeat(const std::string& operand,
                            const std::function<std::string(const std::string& operand)>& form)
{
    if (operand.size() <= kShort && operand.find("SELECT") == std::string::npos)
        return form(operand);
    const std::string name = NextName();
    return "list_transform([" + operand + "], lambda " + name + ": " + form(name) + ")[1]";
}

}  // namespace kavelin::embedded
