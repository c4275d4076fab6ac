#include "frame/Statement.h"

#include "frame/Text.h"

namespace kavelin {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

std::string JoinLines(std::initializer_list<std::string_view> pieces)
{
    std::string text = EndLines(pieces);
    if (!text.empty())
        text.resize(text.size() - kLineEnd.size());
    return text;
}

std::string EndLines(std::initializer_list<std::string_view> pieces)
{
    std::string text;
    for (const std::string_view piece : pieces) {
        text += piece;
        text += kLineEnd;
    }
    return text;
}

std::string Numbered(int first, int last, std::string_view piece)
{
    std::string text;
    for (int number = first; number <= last; ++number)
        text += ReplaceAll(piece, "{}", std::to_string(number));
    return text;
}

}  // namespace kavelin
