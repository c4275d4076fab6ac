// T-SQL's reserved words. Every other word can be a name: Type, Money, name, id, area ...
#pragma once

#include <cstdint>
#include <string_view>

namespace kavelin::embedded {

enum class Keyword : std::uint8_t {
    None,     // no reserved word
    Foreign,  // reserved by T-SQL, without a part in what the embedded engine knows
    Add,
    All,
    Alter,
    And,
    As,
    Asc,
    Between,
    By,
    Case,
    Column,
    Convert,
    Create,
    Default,
    Delete,
    Desc,
    Distinct,
    Drop,
    Else,
    End,
    Exists,
    From,
    Group,
    Having,
    Identity,
    If,
    In,
    Index,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Key,
    Left,
    Like,
    Not,
    Null,
    On,
    Or,
    Order,
    Primary,
    Select,
    Set,
    Table,
    Then,
    Top,
    Union,
    Unique,
    Update,
    Values,
    View,
    When,
    Where,
};

// The keyword that the word is, in any letter case.
Keyword FindKeyword(std::string_view word);

}  // namespace kavelin::embedded
