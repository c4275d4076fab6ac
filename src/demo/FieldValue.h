// A field of a CSV file as a value of its column.
#pragma once

#include "demo/CsvReader.h"
#include "embedded/SqlType.h"
#include "frame/Value.h"

namespace kavelin::demo {

// Numbers, dates and bits must be written in full and in one way (see AccountFiles.h): no blanks, no
// rounding, nothing left over. A text must be UTF-8 and no longer than the column. Throws ConversionError
// with a message that begins with the field's text.
Value ReadField(const CsvField& field, const embedded::SqlType& type);

}  // namespace kavelin::demo
