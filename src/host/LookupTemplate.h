// Where the values of a reference field come from. Read from src/host/data/lookups.json:
//
//   {"lookups": {
//     "items": {"from": "Inventory", "columns": [
//       {"column": "Inventory.cInvCode", "caption": {"zh-CN": "存货编码", "en-US": "Item code"}},
//       {"column": "Inventory.cInvName", "caption": {"zh-CN": "存货名称", "en-US": "Item"}},
//       {"column": "Inventory.cInvCCode", "hidden": true}]}
//   }}
//
//   from      table and joins
//   columns   the code first, then its name. "hidden": true is there for conditions only, and needs no
//             caption. Conditions know a column by its name without the table, so each must be another
//   where     condition, without the word
//   order     columns of "columns" as they are spelt there, separated by commas; the first by default
//   distinct  true: without doubles
//   rights    {"kind": "部门", "column": "Department.cDepCode"}: restricted to what the user may see; the kinds
//             are those of frame/DataPermission.h
#pragma once

#include "host/LocalText.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

struct LookupColumn {
    std::string column;
    LocalText caption;
    bool hidden = false;
};

struct LookupTemplate {
    std::string from;  // empty: there is no lookup
    std::vector<LookupColumn> columns;
    std::string where;
    std::string order;
    bool distinct = false;
    std::string rightsKind;  // empty: without restriction
    std::string rightsColumn;
};

using Lookups = std::map<std::string, LookupTemplate, std::less<>>;

// Throws Error, naming the lookup, if the text does not describe lookups.
Lookups ParseLookups(std::string_view json);

// Those of the host's data file.
const Lookups& AllLookups();

}  // namespace kavelin::host
