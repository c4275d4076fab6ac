// Changes of whole words. Changes of bytes, libFuzzer's own, mostly end in the lexer; those of words reach
// the binder, the writer and DuckDB. Half of the new texts come of each.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::string_view kWords[] = {
#include "Words.inc"
};

enum class Kind { Blank, Word, Other };

Kind KindOf(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte <= ' ')
        return Kind::Blank;
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return letter || (byte >= '0' && byte <= '9') || byte >= 0x80 || c == '_' ? Kind::Word : Kind::Other;
}

// Words, quoted texts and signs; blanks go with what stands before them.
std::vector<std::string> SplitWords(std::string_view text)
{
    std::vector<std::string> words;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t begin = i++;
        const char first = text[begin];
        if (first == '\'' || first == '[') {
            const std::size_t close = text.find(first == '[' ? ']' : '\'', i);
            i = close == std::string_view::npos ? text.size() : close + 1;
        } else if (KindOf(first) == Kind::Word) {
            while (i < text.size() && KindOf(text[i]) == Kind::Word)
                ++i;
        }
        while (i < text.size() && KindOf(text[i]) == Kind::Blank)
            ++i;
        words.emplace_back(text.substr(begin, i - begin));
    }
    return words;
}

std::size_t Below(std::mt19937& random, std::size_t limit)
{
    return random() % limit;
}

std::string AnyWord(std::mt19937& random, const std::vector<std::string>& words)
{
    if (!words.empty() && Below(random, 3) == 0)
        return words[Below(random, words.size())];
    return std::string(kWords[Below(random, std::size(kWords))]);
}

void ChangeWords(std::vector<std::string>& words, std::mt19937& random)
{
    if (words.empty()) {
        words.push_back(AnyWord(random, words));
        return;
    }
    const std::size_t at = Below(random, words.size());
    const auto place = words.begin() + static_cast<std::ptrdiff_t>(at);
    const std::size_t count = 1 + Below(random, std::min<std::size_t>(8, words.size() - at));
    const auto end = place + static_cast<std::ptrdiff_t>(count);
    switch (Below(random, 5)) {
        case 0: words.insert(place, AnyWord(random, words)); break;
        case 1: words.erase(place, end); break;
        case 2: std::swap(words[at], words[Below(random, words.size())]); break;
        case 3: {  // a phrase once more, somewhere else
            const std::vector<std::string> phrase(place, end);
            const std::size_t target = Below(random, words.size() + 1);
            words.insert(words.begin() + static_cast<std::ptrdiff_t>(target), phrase.begin(), phrase.end());
            break;
        }
        default: *place = AnyWord(random, words); break;
    }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    std::mt19937 random(seed);
    if (Below(random, 2) == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::vector<std::string> words = SplitWords({reinterpret_cast<const char*>(data), size});
    for (std::size_t changes = 1 + Below(random, 3); changes > 0; --changes)
        ChangeWords(words, random);
    std::string text;
    for (const std::string& word : words)
        text += word;
    text.resize(std::min(text.size(), maxSize));
    std::memcpy(data, text.data(), text.size());
    return text.size();
}
