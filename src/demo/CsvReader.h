// Reads CSV after RFC 4180, strictly: what is not well-formed is an error with its place, never guessed.
#pragma once

#include "frame/Errors.h"

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace kavelin::demo {

struct CsvField {
    std::string text;
    bool quoted = false;

    // Nothing between the separators.
    bool IsNull() const { return !quoted && text.empty(); }
};

class CsvError : public Error {
  public:
    CsvError(std::int64_t line, const std::string& message) : Error(message), lngLine(line) {}
    std::int64_t Line() const { return lngLine; }

  private:
    std::int64_t lngLine;
};

class CsvReader {
  public:
    // A byte order mark at the start is passed over. `input` must outlive the reader.
    explicit CsvReader(std::istream& input);

    // The next record, false behind the last one. The last line needs no line end; an empty line is a record
    // of one null field. Throws CsvError.
    bool Next(std::vector<CsvField>& record);

    // The line in which the record begins, from 1. Line ends within quotes count.
    std::int64_t Line() const { return lngRecordLine; }

  private:
    enum class After { Field, Record };

    int Take();
    void ReadQuoted(std::string& text);
    void ReadPlain(std::string& text);
    After ReadSeparator();

    std::streambuf* objInput;
    std::int64_t lngLine = 1;
    std::int64_t lngRecordLine = 0;
};

}  // namespace kavelin::demo
