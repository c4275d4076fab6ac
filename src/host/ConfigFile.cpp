#include "host/ConfigFile.h"

#include "database/odbc/ConnectionText.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/LocalText.h"
#include "host/ValueGate.h"

#include <fmt/format.h>
#include <toml++/toml.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kavelin::host {

namespace {

// Takes the settings of one table one by one; what is left over is unknown.
class TableReader {
  public:
    TableReader(const toml::table& table, const std::filesystem::path& file, std::string name)
        : objTable(table), strFile(file.string()), strName(std::move(name))
    {
    }

    std::string Text(std::string_view key)
    {
        const toml::node* node = Take(key);
        if (!node)
            return "";
        if (!node->is_string())
            Fail(*node, key, "takes a text");
        return **node->as_string();
    }

    int Number(std::string_view key, int first, int last)
    {
        const toml::node* node = Take(key);
        if (!node)
            return 0;
        if (!node->is_integer() || **node->as_integer() < first || **node->as_integer() > last)
            Fail(*node, key, fmt::format("takes a number from {} to {}", first, last));
        return static_cast<int>(**node->as_integer());
    }

    std::optional<std::vector<std::string>> List(std::string_view key)
    {
        const toml::node* node = Take(key);
        if (!node)
            return std::nullopt;
        std::vector<std::string> values;
        if (!node->is_array())
            Fail(*node, key, "takes a list of texts");
        for (const toml::node& entry : *node->as_array()) {
            if (!entry.is_string())
                Fail(entry, key, "takes a list of texts");
            values.push_back(**entry.as_string());
        }
        return values;
    }

    // Calls `read` with each sub-table of the table `key` and its name.
    template <class Read>
    void Tables(std::string_view key, Read read)
    {
        const toml::node* node = Take(key);
        if (!node)
            return;
        if (!node->is_table())
            Fail(*node, key, "takes tables");
        for (const auto& [name, entry] : *node->as_table()) {
            if (!entry.is_table())
                Fail(entry, name.str(), "takes a table");
            TableReader reader(*entry.as_table(), strFile, fmt::format("{}.{}", key, name.str()));
            read(std::string(name.str()), reader);
            reader.RefuseUnknown();
        }
    }

    void RefuseUnknown() const
    {
        for (const auto& [key, node] : objTable) {
            if (std::ranges::find(lstTaken, key.str()) != lstTaken.end())
                continue;
            if (EqualsNoCase(key.str(), "password"))
                Fail(node, key.str(),
                     "is not read from a file: name an environment variable by password_env");
            Fail(node, key.str(), "is not known." + DidYouMean(key.str(), lstTaken));
        }
    }

    // "FILE, line 3: accounts.demo.year".
    std::string Place(std::string_view key) const
    {
        const toml::node* node = objTable.get(key);
        return fmt::format("{}, line {}: {}{}{}", strFile, node ? node->source().begin.line : 0, strName,
                           strName.empty() ? "" : ".", key);
    }

  private:
    const toml::node* Take(std::string_view key)
    {
        lstTaken.emplace_back(key);
        return objTable.get(key);
    }

    [[noreturn]] void Fail(const toml::node& node, std::string_view key, const std::string& what) const
    {
        throw UsageError(fmt::format("{}, line {}: {}{}{} {}{}", strFile, node.source().begin.line, strName,
                                     strName.empty() ? "" : ".", key, what,
                                     what.ends_with('.') || what.ends_with('?') ? "" : "."));
    }

    const toml::table& objTable;
    std::string strFile;
    std::string strName;  // of the table, empty for the file itself
    std::vector<std::string> lstTaken;
};

AccountSettings ReadAccount(const std::string& name, TableReader& table, const std::filesystem::path& folder)
{
    AccountSettings account;
    account.name = name;
    account.connectionString = table.Text("connection");
    RefusePassword(account.connectionString, table.Place("connection"));
    if (const std::string path = table.Text("path"); !path.empty())
        account.path = (folder / path).lexically_normal().string();
    if (account.connectionString.empty() == account.path.empty())
        throw UsageError(table.Place("path") + ": an account has either a connection or a path.");
    if (const std::string id = table.Text("id"); !id.empty())
        account.id = id;
    account.user = table.Text("user");
    account.language = table.Text("language");
    if (!account.language.empty())
        account.language = CheckedLanguage(account.language, table.Place("language"));
    account.passwordVariable = table.Text("password_env");
    account.year = table.Number("year", 1900, 9998);
    account.month = table.Number("month", 1, 12);
    return account;
}

UserRights ReadRights(TableReader& table)
{
    UserRights rights;
    rights.warehouses = table.List("warehouses");
    rights.departments = table.List("departments");
    rights.inventory = table.List("inventory");
    rights.operators = table.List("operators");
    return rights;
}

void Replace(std::string& setting, std::string value)
{
    if (!value.empty())
        setting = std::move(value);
}

}  // namespace

void ReadConfigFile(const std::filesystem::path& file, FileSettings& settings)
{
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        return;
    toml::table document;
    try {
        document = toml::parse_file(file.string());
    } catch (const toml::parse_error& e) {
        throw UsageError(
            fmt::format("{}, line {}: {}", file.string(), e.source().begin.line, e.description()));
    }

    TableReader table(document, file, "");
    Replace(settings.account, table.Text("account"));
    Replace(settings.user, table.Text("user"));
    if (const std::string language = table.Text("language"); !language.empty())
        settings.language = CheckedLanguage(language, table.Place("language"));
    table.Tables("accounts", [&](const std::string& name, TableReader& account) {
        settings.accounts.insert_or_assign(name, ReadAccount(name, account, file.parent_path()));
    });
    table.Tables("users", [&](const std::string& name, TableReader& user) {
        settings.users.insert_or_assign(name, ReadRights(user));
    });
    table.RefuseUnknown();
}

std::string CheckedLanguage(std::string_view language, std::string_view source)
{
    for (const std::string_view known : {kChinese, kEnglish})
        if (EqualsNoCase(known, language))
            return std::string(known);
    throw UsageError(fmt::format("{}: \"{}\" is no language of this program, which are zh-CN and en-US.",
                                 source, language));
}

void RefusePassword(std::string_view connectionString, std::string_view source)
{
    bool holds = !odbc::PasswordOf(connectionString).empty();
    for (const std::string& part : Split(connectionString, ";")) {
        const std::string_view key = Trim(std::string_view(part).substr(0, part.find('=')));
        holds = holds || EqualsNoCase(key, "Password") || EqualsNoCase(key, "PWD");
    }
    if (holds)
        throw UsageError(
            fmt::format("{}: a connection string holds no password here: put it into the environment "
                        "variable KAVELIN_PASSWORD, or name another one by password_env of an account "
                        "in kavelin.toml.",
                        source));
}

}  // namespace kavelin::host
