// What fields the filter of a report has. Read from a data file per report, src/host/data/filters/*.json; the
// dialog shows its fields, and the report walks them, in the order of the file:
//
//   {"fields": [
//     {"key": "cinvcode", "caption": {"zh-CN": "存货编码", "en-US": "Item code"}, "kind": "reference",
//      "range": true, "column": "IA_Subsidiary.cInvCode", "lookup": "items", "example": "A01..B99"}
//   ]}
//
// Members of a field; all but the first three may be left out:
//
//   key         the name that the report reads, in the spelling that it compares
//   caption     {"zh-CN": ..., "en-US": ...}
//   kind        text, number, date    what they say; a date is YYYY-MM-DD
//               flag                  是 or 否
//               list                  one of "entries", or of what the callbacks of the dialog offer
//               reference             a code that a lookup offers; others are taken too
//               year                  "2008"
//               month                 "7月", a month of the chosen year
//               period                "2008.07", a month across years
//   controlKey  the key of the operations on the field, if it is another one than "key"
//   range       true: takes "from" and "to"
//   bothEnds    true: a range neither end of which may be missing
//   multiple    true: takes several values
//   separator   between several values: "comma" (by default) or "tab"
//   mandatory   true: the report doesn't run without a value
//   argument    true: travels in the arguments of the call, not in the filter
//   whole, minimum   of numbers: no decimals; the least one
//   column      the column that GetWhereWithToken compares; without it the field never comes out of it. A
//               month and a year stand there as bare numbers
//   match       how it compares: "equal" (by default), or "prefix" for classes that hold others
//   default, example   as a user would write them, "A..B" for a range
//   entries     of a list: [{"value": what reaches the report, "caption": {...}}]
//   enum        type of the enum texts that are the captions of list entries which "entries" doesn't tell;
//               of a month "IA.Month" by default
//   lookup      of a reference: the lookup of that name (host/LookupTemplate.h), unless the callbacks set a
//               SELECT
//   lookupWhere in the place of that lookup's "where"
//   dates       of a period: ["dKeepDate", "dVouDate"]; see host/PeriodDates.h
//   numbers     "1-3,8-14": a family, one field a number in that order. In all its texts {} stands for the
//               number and {+19} for the sum of the two
#pragma once

#include "host/LocalText.h"
#include "host/LookupTemplate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

enum class FieldKind { Text, Number, Date, List, Reference, Flag, Year, Month, Period };
enum class FieldMatch { Equal, Prefix };

struct ListEntry {
    std::string value;  // what reaches the report
    LocalText caption;
};

struct FilterField {
    std::string key;
    std::string controlKey;  // never empty
    LocalText caption;
    FieldKind kind = FieldKind::Text;
    bool range = false;
    bool bothEnds = false;
    bool multiple = false;
    char separator = ',';
    bool mandatory = false;
    bool argument = false;

    std::string column;
    FieldMatch match = FieldMatch::Equal;

    std::vector<ListEntry> entries;
    std::string enumType;
    LookupTemplate lookup;
    std::vector<std::string> dates;
    bool whole = false;
    std::optional<long> minimum;
    std::string byDefault;
    std::string example;
};

struct FilterTemplate {
    std::string report;
    std::vector<FilterField> fields;

    // The field of that key, without regard to case; null if there is none.
    const FilterField* Find(std::string_view key) const;
};

// "text", "number", "date" and so on.
std::string_view KindName(FieldKind kind);

// What the field takes, for a message or a help text: "a date, YYYY-MM-DD, or a range FROM..TO".
std::string WhatItTakes(const FilterField& field);

// Throws Error, naming `report` and the field, if the text does not describe a filter.
FilterTemplate ParseFilterTemplate(std::string_view report, std::string_view json,
                                   const Lookups& lookups = {});

// The template of a report by its command name. Throws Error if the host has none.
const FilterTemplate& TemplateOf(std::string_view report);

}  // namespace kavelin::host
