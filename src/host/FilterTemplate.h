// What fields the filter of a report has. Read from a data file per report, src/host/data/filters/*.json:
//
//   {"fields": [
//     {"key": "cinvcode", "caption": {"zh-CN": "存货编码", "en-US": "Item code"}, "kind": "reference",
//      "range": true, "column": "IA_Subsidiary.cInvCode", "example": "A01..B99"}
//   ]}
#pragma once

#include "host/LocalText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

enum class FieldKind { Text, Number, Date, List, Reference, Flag };
enum class FieldMatch { Equal, Prefix };

struct ListEntry {
    std::string value;  // what reaches the report
    LocalText caption;
};

struct FilterField {
    std::string key;
    LocalText caption;
    FieldKind kind = FieldKind::Text;
    bool range = false;     // takes "from" and "to", either of which may be missing
    bool multiple = false;  // takes several values
    char separator = ',';   // between the values of a multiple selection: ',' or '\t'
    bool argument = false;  // travels in the arguments of the call, not in the filter

    // The column that GetWhereWithToken compares; empty for an option, which never comes out of it.
    std::string column;
    FieldMatch match = FieldMatch::Equal;

    std::vector<ListEntry> entries;  // of a list; others take any value of their kind
    bool whole = false;              // numbers: no decimals
    std::optional<long> minimum;     // numbers
    std::string byDefault;           // as a user would write it, "A..B" for a range; empty: none
    std::string example;             // likewise
};

struct FilterTemplate {
    std::string report;
    std::vector<FilterField> fields;

    // The field of that key, without regard to case; null if there is none.
    const FilterField* Find(std::string_view key) const;
};

// "text", "number", "date", "list", "reference", "flag".
std::string_view KindName(FieldKind kind);

// What the field takes, for a message or a help text: "a date, YYYY-MM-DD, or a range FROM..TO".
std::string WhatItTakes(const FilterField& field);

// Throws Error, naming `report` and the field, if the text does not describe a filter.
FilterTemplate ParseFilterTemplate(std::string_view report, std::string_view json);

// The template of a report by its command name. Throws Error if the host has none.
const FilterTemplate& TemplateOf(std::string_view report);

// True and false as a flag field takes them: 是 and 否 are what the reports compare.
inline constexpr std::string_view kYes = "是";
inline constexpr std::string_view kNo = "否";

}  // namespace kavelin::host
