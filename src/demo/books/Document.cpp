#include "demo/books/Document.h"

#include "demo/books/Padded.h"

namespace kavelin::demo {

std::string CodeOf(const Document& document)
{
    const std::chrono::year_month_day day(document.day);
    std::string code(document.type->prefix);
    code += '-';
    AppendPadded(code, static_cast<int>(day.year()) % 100, 2);
    AppendPadded(code, static_cast<std::int32_t>(static_cast<unsigned>(day.month())), 2);
    code += '-';
    AppendPadded(code, document.number, 4);
    return code;
}

}  // namespace kavelin::demo
