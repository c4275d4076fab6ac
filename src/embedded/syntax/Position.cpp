#include "embedded/syntax/Position.h"

#include "frame/Text.h"

namespace kavelin::embedded {

LineColumn LineAndColumn(std::string_view text, std::size_t offset)
{
    LineColumn found;
    for (std::size_t position = 0; position < text.size() && position < offset;) {
        const char32_t character = NextCharacter(text, position);
        const bool crBeforeLf = character == U'\r' && position < text.size() && text[position] == '\n';
        if (character == U'\n' || (character == U'\r' && !crBeforeLf)) {
            ++found.line;
            found.column = 1;
        } else {
            ++found.column;
        }
    }
    return found;
}

}  // namespace kavelin::embedded
