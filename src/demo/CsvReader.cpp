#include "demo/CsvReader.h"

#include <string_view>

namespace kavelin::demo {

namespace {

constexpr int kEnd = std::char_traits<char>::eof();

// No text holds a NUL. A file does that was cut off by a crash, or is in UTF-16.
[[noreturn]] void RefuseNul(std::int64_t line)
{
    throw CsvError(line, "a NUL stands there: the file is damaged, or no UTF-8 text");
}

}  // namespace

CsvReader::CsvReader(std::istream& input) : objInput(input.rdbuf())
{
    if (objInput->sgetc() != 0xEF)
        return;
    // Three bytes or none: 0xEF can begin another character, which then has to be given back.
    const std::streampos start = objInput->pubseekoff(0, std::ios::cur, std::ios::in);
    char mark[3] = {};
    if (objInput->sgetn(mark, 3) != 3 || std::string_view(mark, 3) != "\xEF\xBB\xBF")
        objInput->pubseekpos(start, std::ios::in);
}

bool CsvReader::Next(std::vector<CsvField>& record)
{
    if (objInput->sgetc() == kEnd)
        return false;
    lngRecordLine = lngLine;

    std::size_t count = 0;
    do {
        if (count == record.size())
            record.emplace_back();
        CsvField& field = record[count++];
        field.text.clear();
        field.quoted = objInput->sgetc() == '"';
        if (field.quoted)
            ReadQuoted(field.text);
        else
            ReadPlain(field.text);
    } while (ReadSeparator() == After::Field);
    record.resize(count);
    return true;
}

int CsvReader::Take()
{
    const int character = objInput->sbumpc();
    if (character == '\n')
        ++lngLine;
    return character;
}

void CsvReader::ReadQuoted(std::string& text)
{
    const std::int64_t begin = lngLine;
    Take();
    for (;;) {
        const int character = Take();
        if (character == kEnd)
            throw CsvError(begin, "the field that begins with a quote here never ends");
        if (character == 0)
            RefuseNul(lngLine);
        if (character == '"') {
            if (objInput->sgetc() != '"')
                return;
            Take();
        }
        text += static_cast<char>(character);
    }
}

void CsvReader::ReadPlain(std::string& text)
{
    for (;;) {
        const int next = objInput->sgetc();
        if (next == kEnd || next == ',' || next == '\r' || next == '\n')
            return;
        if (next == 0)
            RefuseNul(lngLine);
        if (next == '"')
            throw CsvError(lngLine, "a quote stands within a field that does not begin with one");
        text += static_cast<char>(Take());
    }
}

CsvReader::After CsvReader::ReadSeparator()
{
    const int separator = Take();
    switch (separator) {
        case ',': return After::Field;
        case '\r':
            if (objInput->sgetc() != '\n')
                throw CsvError(lngLine, "a carriage return stands without a line feed behind it");
            Take();
            return After::Record;
        case '\n':
        case kEnd: return After::Record;
        default: throw CsvError(lngLine, "more text stands behind a closing quote");
    }
}

}  // namespace kavelin::demo
