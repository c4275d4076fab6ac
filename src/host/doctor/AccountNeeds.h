// What an account must have so that the reports run.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

struct NeededColumn {
    std::string name;
    std::string reports;  // names between blanks; empty: read only where a user asks for more than usual
};

struct NeededObject {
    std::string name;     // "Inventory", "VosSystem..UA_Period", "dbo.UDF_GetLocaleID()"
    std::string reports;  // as of a column
    std::vector<NeededColumn> columns;

    bool IsFunction() const { return name.ends_with("()"); }
};

// Reads a text of lines as needs.txt has them:
//   # a remark
//   OBJECT: REPORT REPORT...
//       COLUMN COLUMN...: REPORT REPORT...
std::vector<NeededObject> ReadAccountNeeds(std::string_view text);

// Everything that the reports and their dialogs read.
const std::vector<NeededObject>& AccountNeeds();

}  // namespace kavelin::host
