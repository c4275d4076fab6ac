#include "support/tds/OwnAnswers.h"

#include "frame/Text.h"
#include "support/tds/Tokens.h"

#include <cctype>

namespace kavelin::test::tds {

namespace {

struct Asked {
    const ServerOptions& options;
    const std::string& database;
};

struct AnswerColumn {
    const char* name;
    const char* type;
    Value (*value)(const Asked&);
};

struct AnswerRow {
    std::string_view batch;
    std::vector<AnswerColumn> columns;
};

Value FullVersion(const Asked& asked)
{
    return "Microsoft SQL Server - " + asked.options.version + " (X64) " + asked.options.edition;
}
Value Version(const Asked& asked)
{
    return asked.options.version;
}
Value Edition(const Asked& asked)
{
    return asked.options.edition;
}
Value Database(const Asked& asked)
{
    return asked.database;
}
Value Level(const Asked& asked)
{
    return asked.options.compatibilityLevel;
}
Value Collation(const Asked& asked)
{
    return asked.options.collation;
}
Value TempdbCollation(const Asked& asked)
{
    return asked.options.tempdbCollation;
}
Value SessionNumber(const Asked&)
{
    return 51;
}

const std::vector<AnswerRow>& Answers()
{
    static const std::vector<AnswerRow> answers = {
        {"select @@version", {{"", "nvarchar(300)", FullVersion}}},
        {"select @@spid", {{"", "smallint", SessionNumber}}},
        {"select db_name()", {{"", "nvarchar(128)", Database}}},
        {"select convert(nvarchar(128), serverproperty('ProductVersion')) as version,"
         " convert(nvarchar(128), serverproperty('Edition')) as edition",
         {{"version", "nvarchar(128)", Version}, {"edition", "nvarchar(128)", Edition}}},
        {"select d.name, d.cmptlevel,"
         " convert(nvarchar(128), databasepropertyex(d.name, 'Collation')) as collation,"
         " convert(nvarchar(128), databasepropertyex(N'tempdb', 'Collation')) as tempdbCollation"
         " from master..sysdatabases d where d.name = db_name()",
         {{"name", "nvarchar(128)", Database},
          {"cmptlevel", "tinyint", Level},
          {"collation", "nvarchar(128)", Collation},
          {"tempdbCollation", "nvarchar(128)", TempdbCollation}}},
    };
    return answers;
}

// SET options that drivers and programs use, and the words that follow each; only NOCOUNT has a meaning here.
struct Setting {
    std::string_view name;
    int words;
};
constexpr Setting kSettings[] = {
    {"ansi_defaults", 1},
    {"ansi_null_dflt_on", 1},
    {"ansi_nulls", 1},
    {"ansi_padding", 1},
    {"ansi_warnings", 1},
    {"arithabort", 1},
    {"concat_null_yields_null", 1},
    {"cursor_close_on_commit", 1},
    {"dateformat", 1},
    {"implicit_transactions", 1},
    {"language", 1},
    {"lock_timeout", 1},
    {"nocount", 1},
    {"quoted_identifier", 1},
    {"textsize", 1},
    {"transaction", 4},  // ISOLATION LEVEL READ COMMITTED
    {"xact_abort", 1},
};

// Blanks, line ends and semicolons.
bool IsBetween(char c)
{
    return std::isspace(static_cast<unsigned char>(c)) != 0 || c == ';';
}

// The word at the front, which may stand in brackets.
std::string_view TakeWord(std::string_view& text)
{
    while (!text.empty() && IsBetween(text.front()))
        text.remove_prefix(1);
    std::size_t length = 0;
    if (text.starts_with('['))
        length = std::min(text.find(']'), text.size() - 1) + 1;
    while (length < text.size() && !IsBetween(text[length]))
        ++length;
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(length);
    return word;
}

std::string_view WithoutBrackets(std::string_view name)
{
    return name.starts_with('[') && name.ends_with(']') ? name.substr(1, name.size() - 2) : name;
}

bool TakeSet(std::string_view& batch, SessionSettings& settings)
{
    std::string_view rest = batch;
    const std::string_view name = TakeWord(rest);
    for (const Setting& setting : kSettings) {
        if (!EqualsNoCase(setting.name, name))
            continue;
        std::string_view value;
        for (int word = 0; word < setting.words; ++word)
            value = TakeWord(rest);
        if (setting.name == "nocount")
            settings.countsRows = EqualsNoCase(value, "off");
        batch = rest;
        return true;
    }
    return false;
}

}  // namespace

std::string InOneLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
        if (!blank)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    while (line.ends_with(' ') || line.ends_with(';'))
        line.pop_back();
    return line;
}

std::optional<OwnResult> OwnAnswer(std::string_view batch, const ServerOptions& options,
                                   const std::string& database)
{
    const std::string line = InOneLine(batch);
    for (const AnswerRow& answer : Answers()) {
        if (!EqualsNoCase(answer.batch, line))
            continue;
        OwnResult result;
        std::vector<Value>& row = result.rows.emplace_back();
        for (const AnswerColumn& column : answer.columns) {
            result.columns.push_back({column.name, TypeOf(column.type)});
            row.push_back(column.value({options, database}));
        }
        return result;
    }
    return std::nullopt;
}

void TakeSettings(std::string_view& batch, SessionSettings& settings, const ServerOptions& options)
{
    for (;;) {
        std::string_view rest = batch;
        const std::string_view word = TakeWord(rest);
        if (EqualsNoCase(word, "set")) {
            if (!TakeSet(rest, settings))
                return;
        } else if (EqualsNoCase(word, "use")) {
            const std::string name(WithoutBrackets(TakeWord(rest)));
            if (!HasDatabase(options, name))
                throw Refusal({911, 16, "Database '" + name + "' does not exist."});
            settings.database = name;
        } else {
            if (word.empty())
                batch = {};
            return;
        }
        batch = rest;
    }
}

bool HasDatabase(const ServerOptions& options, std::string_view name)
{
    for (const std::string_view known : {std::string_view(options.database), std::string_view("VosSystem"),
                                         std::string_view("tempdb"), std::string_view("master")})
        if (EqualsNoCase(known, name))
            return true;
    return false;
}

}  // namespace kavelin::test::tds
