#include "component/late/ScenarioReader.h"

#include "support/GoldenFile.h"

#include <sstream>
#include <stdexcept>

namespace kavelin::test {

namespace {

using Parts = std::vector<std::string>;

Parts Split(const std::string& line, char separator)
{
    Parts parts(1);
    for (const char c : line) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

std::string Plain(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            plain += text[i];
            continue;
        }
        switch (text.at(++i)) {
            case 'p': plain += '|'; break;
            case 'r': plain += '\r'; break;
            case 'n': plain += '\n'; break;
            case 't': plain += '\t'; break;
            case 'h': plain += '#'; break;
            default: plain += text[i];
        }
    }
    return plain;
}

Value ReadValue(const std::string& text)
{
    if (!text.starts_with("#"))
        return Value(Plain(text));
    const Parts parts = Split(text.substr(1), ' ');
    const std::string& kind = parts[0];
    const Value content = text.substr(kind.size() + 1 < text.size() ? kind.size() + 2 : text.size());
    if (kind == "empty")
        return Value();
    if (kind == "null")
        return Value::Null();
    if (kind == "true" || kind == "false")
        return Value(kind == "true");
    if (kind == "int")
        return Value(ToInt32(content));
    if (kind == "double")
        return Value(ToDouble(content));
    if (kind == "decimal")
        return Value(*Decimal::FromText(ToText(content)));
    if (kind == "date")
        return Value(ToDate(content));
    throw std::runtime_error("a value of no kind: " + text);
}

bool Has(const Parts& parts, const std::string& word)
{
    for (std::size_t i = 4; i < parts.size(); ++i)
        if (parts[i] == word)
            return true;
    return false;
}

Guid ReadGuid(const std::string& digits)
{
    Guid guid;
    for (std::size_t i = 0; i < guid.size(); ++i)
        guid[i] = static_cast<std::uint8_t>(std::stoul(digits.substr(2 * i, 2), nullptr, 16));
    return guid;
}

class Reader {
  public:
    explicit Reader(RecordingHost& host) : objHost(host) {}

    std::string Read(const std::string& text)
    {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line) && line != "events";)
            Entry(Split(line, '|'));
        objHost.SetFilter(lstFields);
        objHost.Filter()->where = strWhere;
        objHost.Filter()->whereByToken = dicWhere;
        if (!strDialog.empty()) {
            objHost.Filter()->filterId = strDialog;
            objHost.Filter()->login = objHost.Login();
        }
        return strClass;
    }

  private:
    void Entry(const Parts& parts)
    {
        HostAnswers& answers = objHost.Answers();
        const std::string& entry = parts[0];
        const auto text = [&](std::size_t i) { return Plain(parts.at(i)); };
        if (entry == "class")
            strClass = text(1);
        else if (entry == "dialog")
            strDialog = text(1);
        else if (entry == "login")
            Login(parts[1], ReadValue(parts.at(2)));
        else if (entry == "sql")
            answers.sql = text(1);
        else if (entry == "language")
            answers.langId = text(1);
        else if (entry == "arg")
            answers.args[text(1)] = ReadValue(parts.at(2));
        else if (entry == "field")
            lstFields.push_back({text(1), ReadValue(parts.at(2)), ReadValue(parts.at(3)), Has(parts, "range"),
                                 Has(parts, "several"), ""});
        else if (entry == "where" && parts.at(1).empty())
            strWhere = text(2);
        else if (entry == "where")
            dicWhere[std::stoi(parts[1])] = text(2);
        else if (entry == "list")
            answers.lists[text(1)] = text(2);
        else if (entry == "text")
            answers.texts[text(1)] = text(2);
        else if (entry == "code")
            answers.codes[text(1)] = text(2);
        else if (entry == "ledger")
            Ledger(parts[1], text(2));
        else if (entry == "setting")
            answers.settings[text(1)] = text(2);
        else if (entry == "guid")
            answers.guid = ReadGuid(parts.at(1));
        else if (entry == "rows")
            ptrRows =
                &(parts.at(1) == "whole" ? objHost.Script().rows : objHost.Script().rowsByStart)[text(2)];
        else if (entry == "columns")
            for (std::size_t i = 1; i < parts.size(); ++i)
                ptrRows->fields.push_back(text(i));
        else if (entry == "row")
            Row(parts);
        else
            throw std::runtime_error("an entry that scenarios don't have: " + entry);
    }

    void Login(const std::string& member, const Value& value)
    {
        HostAnswers& answers = objHost.Answers();
        const std::map<std::string, std::string*> texts = {
            {"VosDbName", &answers.vosDbName},
            {"AccountId", &answers.accountId},
            {"Year", &answers.year},
            {"Password", &answers.password},
            {"UserId", &answers.userId},
            {"ConnectionText", &answers.connectionText},
            {"SystemConnection", &answers.systemConnection},
        };
        if (const auto found = texts.find(member); found != texts.end())
            *found->second = ToText(value);
        else if (member == "Month")
            answers.month = ToInt32(value);
        else if (member == "Date")
            answers.date = ToDate(value);
        else if (member == "AuthService")
            answers.loginHasAuthService = ToBoolean(value);
        else
            throw std::runtime_error("a member that the login doesn't have: " + member);
    }

    void Ledger(const std::string& member, const std::string& text)
    {
        HostAnswers& answers = objHost.Answers();
        (member == "Year"         ? answers.paramsYear
         : member == "ValueStyle" ? answers.valueStyle
                                  : answers.inventoryQualifier) = text;
    }

    void Row(const Parts& parts)
    {
        auto& row = ptrRows->rows.emplace_back();
        for (std::size_t i = 1; i < parts.size(); ++i)
            row.push_back(ReadValue(parts[i]));
    }

    RecordingHost& objHost;
    std::string strClass;
    std::string strDialog;  // identity of the dialog that opens; empty for a report
    std::vector<FakeField> lstFields;
    std::string strWhere;
    std::map<std::int32_t, std::string> dicWhere;
    Rows* ptrRows = nullptr;
};

}  // namespace

std::string PlayScenario(const std::filesystem::path& file, RecordingHost& host)
{
    return Reader(host).Read(ReadFile(file));
}

}  // namespace kavelin::test
