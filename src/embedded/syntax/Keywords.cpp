#include "embedded/syntax/Keywords.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kavelin::embedded {

namespace {

struct ReservedWord {
    std::string_view word;
    Keyword keyword;
};

// clang-format off
constexpr ReservedWord kReservedWords[] = {
    {"add", Keyword::Add}, {"all", Keyword::All}, {"alter", Keyword::Alter}, {"and", Keyword::And},
    {"any", Keyword::Foreign}, {"as", Keyword::As}, {"asc", Keyword::Asc},
    {"authorization", Keyword::Foreign}, {"backup", Keyword::Foreign}, {"begin", Keyword::Foreign},
    {"between", Keyword::Between}, {"break", Keyword::Foreign}, {"browse", Keyword::Foreign},
    {"bulk", Keyword::Foreign}, {"by", Keyword::By}, {"cascade", Keyword::Foreign},
    {"case", Keyword::Case}, {"check", Keyword::Foreign}, {"checkpoint", Keyword::Foreign},
    {"close", Keyword::Foreign}, {"clustered", Keyword::Foreign}, {"coalesce", Keyword::Foreign},
    {"collate", Keyword::Foreign}, {"column", Keyword::Column}, {"commit", Keyword::Foreign},
    {"compute", Keyword::Foreign}, {"constraint", Keyword::Foreign}, {"contains", Keyword::Foreign},
    {"containstable", Keyword::Foreign}, {"continue", Keyword::Foreign}, {"convert", Keyword::Convert},
    {"create", Keyword::Create}, {"cross", Keyword::Foreign}, {"current", Keyword::Foreign},
    {"current_date", Keyword::Foreign}, {"current_time", Keyword::Foreign},
    {"current_timestamp", Keyword::Foreign}, {"current_user", Keyword::Foreign},
    {"cursor", Keyword::Foreign}, {"database", Keyword::Foreign}, {"dbcc", Keyword::Foreign},
    {"deallocate", Keyword::Foreign}, {"declare", Keyword::Foreign}, {"default", Keyword::Default},
    {"delete", Keyword::Delete}, {"deny", Keyword::Foreign}, {"desc", Keyword::Desc},
    {"disk", Keyword::Foreign}, {"distinct", Keyword::Distinct}, {"distributed", Keyword::Foreign},
    {"double", Keyword::Foreign}, {"drop", Keyword::Drop}, {"dump", Keyword::Foreign},
    {"else", Keyword::Else}, {"end", Keyword::End}, {"errlvl", Keyword::Foreign},
    {"escape", Keyword::Foreign}, {"except", Keyword::Foreign}, {"exec", Keyword::Foreign},
    {"execute", Keyword::Foreign}, {"exists", Keyword::Exists}, {"exit", Keyword::Foreign},
    {"external", Keyword::Foreign}, {"fetch", Keyword::Foreign}, {"file", Keyword::Foreign},
    {"fillfactor", Keyword::Foreign}, {"for", Keyword::Foreign}, {"foreign", Keyword::Foreign},
    {"freetext", Keyword::Foreign}, {"freetexttable", Keyword::Foreign}, {"from", Keyword::From},
    {"full", Keyword::Foreign}, {"function", Keyword::Foreign}, {"goto", Keyword::Foreign},
    {"grant", Keyword::Foreign}, {"group", Keyword::Group}, {"having", Keyword::Having},
    {"holdlock", Keyword::Foreign}, {"identity", Keyword::Identity}, {"identity_insert", Keyword::Foreign},
    {"identitycol", Keyword::Foreign}, {"if", Keyword::If}, {"in", Keyword::In}, {"index", Keyword::Index},
    {"inner", Keyword::Inner}, {"insert", Keyword::Insert}, {"intersect", Keyword::Foreign},
    {"into", Keyword::Into}, {"is", Keyword::Is}, {"join", Keyword::Join}, {"key", Keyword::Key},
    {"kill", Keyword::Foreign}, {"left", Keyword::Left}, {"like", Keyword::Like},
    {"lineno", Keyword::Foreign}, {"load", Keyword::Foreign}, {"merge", Keyword::Foreign},
    {"national", Keyword::Foreign}, {"nocheck", Keyword::Foreign}, {"nonclustered", Keyword::Foreign},
    {"not", Keyword::Not}, {"null", Keyword::Null}, {"nullif", Keyword::Foreign}, {"of", Keyword::Foreign},
    {"off", Keyword::Foreign}, {"offsets", Keyword::Foreign}, {"on", Keyword::On},
    {"open", Keyword::Foreign}, {"opendatasource", Keyword::Foreign}, {"openquery", Keyword::Foreign},
    {"openrowset", Keyword::Foreign}, {"openxml", Keyword::Foreign}, {"option", Keyword::Foreign},
    {"or", Keyword::Or}, {"order", Keyword::Order}, {"outer", Keyword::Foreign},
    {"over", Keyword::Foreign}, {"percent", Keyword::Foreign}, {"pivot", Keyword::Foreign},
    {"plan", Keyword::Foreign}, {"precision", Keyword::Foreign}, {"primary", Keyword::Primary},
    {"print", Keyword::Foreign}, {"proc", Keyword::Foreign}, {"procedure", Keyword::Foreign},
    {"public", Keyword::Foreign}, {"raiserror", Keyword::Foreign}, {"read", Keyword::Foreign},
    {"readtext", Keyword::Foreign}, {"reconfigure", Keyword::Foreign}, {"references", Keyword::Foreign},
    {"replication", Keyword::Foreign}, {"restore", Keyword::Foreign}, {"restrict", Keyword::Foreign},
    {"return", Keyword::Foreign}, {"revert", Keyword::Foreign}, {"revoke", Keyword::Foreign},
    {"right", Keyword::Foreign}, {"rollback", Keyword::Foreign}, {"rowcount", Keyword::Foreign},
    {"rowguidcol", Keyword::Foreign}, {"rule", Keyword::Foreign}, {"save", Keyword::Foreign},
    {"schema", Keyword::Foreign}, {"securityaudit", Keyword::Foreign}, {"select", Keyword::Select},
    {"session_user", Keyword::Foreign}, {"set", Keyword::Set}, {"setuser", Keyword::Foreign},
    {"shutdown", Keyword::Foreign}, {"some", Keyword::Foreign}, {"statistics", Keyword::Foreign},
    {"system_user", Keyword::Foreign}, {"table", Keyword::Table}, {"tablesample", Keyword::Foreign},
    {"textsize", Keyword::Foreign}, {"then", Keyword::Then}, {"to", Keyword::Foreign},
    {"top", Keyword::Top}, {"tran", Keyword::Foreign}, {"transaction", Keyword::Foreign},
    {"trigger", Keyword::Foreign}, {"truncate", Keyword::Foreign}, {"try_convert", Keyword::Foreign},
    {"tsequal", Keyword::Foreign}, {"union", Keyword::Union}, {"unique", Keyword::Unique},
    {"unpivot", Keyword::Foreign}, {"update", Keyword::Update}, {"updatetext", Keyword::Foreign},
    {"use", Keyword::Foreign}, {"user", Keyword::Foreign}, {"values", Keyword::Values},
    {"varying", Keyword::Foreign}, {"view", Keyword::View}, {"waitfor", Keyword::Foreign},
    {"when", Keyword::When}, {"where", Keyword::Where}, {"while", Keyword::Foreign},
    {"with", Keyword::Foreign}, {"writetext", Keyword::Foreign},
};
// clang-format on

constexpr bool IsSorted()
{
    for (std::size_t i = 1; i < std::size(kReservedWords); ++i)
        if (kReservedWords[i].word <= kReservedWords[i - 1].word)
            return false;
    return true;
}
static_assert(IsSorted(), "FindKeyword searches by halves");

}  // namespace

Keyword FindKeyword(std::string_view word)
{
    constexpr std::size_t kLongest = 17;
    if (word.size() > kLongest)
        return Keyword::None;
    std::array<char, kLongest> lower{};
    std::transform(word.begin(), word.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    const std::string_view key(lower.data(), word.size());

    const auto* found = std::lower_bound(
        std::begin(kReservedWords), std::end(kReservedWords), key,
        [](const ReservedWord& entry, std::string_view sought) { return entry.word < sought; });
    return found != std::end(kReservedWords) && found->word == key ? found->keyword : Keyword::None;
}

}  // namespace kavelin::embedded
