#include "cli/TextRows.h"

#include "cli/Terminal.h"
#include "host/output/OutputTable.h"

#include <iostream>

namespace kavelin::cli {

void WriteList(const TextRows::Row& names, std::vector<TextRows::Row> rows)
{
    host::TableOptions options;
    options.width = TerminalWidth(Stream::Output);
    options.colour = HasColour(Stream::Output);
    options.whole = true;
    TextRows list(names, std::move(rows));
    host::WriteTable(list, options, std::cout);
}

}  // namespace kavelin::cli
