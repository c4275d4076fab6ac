// Runs the capital share on an embedded account and prints the items that tie up most capital.
//
//     capital-share-cpp demo.kavelin 2008
//
// A C++ host uses the classes themselves. It implements the interfaces of frame/host that the report reads:
// here the filter and the argument. Login and platform are those of the reference host; a host with a login
// service, texts and viewers of its own implements these interfaces too.
#include "analysis/clsProPortion.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "frame/Text.h"
#include "frame/host/ReportCallArgs.h"
#include "host/HostConnection.h"
#include "host/HostLogin.h"
#include "host/HostPlatform.h"

#include <cstdint>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace kavelin;

namespace {

constexpr const char* kLanguage = "zh-CN";
constexpr const char* kTable = "tempdb..CapitalShare";

// The one field that this host's user can fill in: how many ranks he wants to see.
class RankItem : public FilterItem {
  public:
    std::string Name() override { return "cNo"; }
    std::string ControlKey() override { return "cNo"; }
    Value varValue() override { return varRanks; }
    void SetvarValue(const Value& value) override { varRanks = value; }
    Value varValue2() override { return {}; }
    void SetvarValue2(const Value&) override {}
    bool RangeInput() override { return false; }
    bool IsMultSel() override { return false; }
    std::string ListSource() override { return {}; }
    void SetListSource(const std::string&) override {}
    void SetLngGrouptoken(std::int32_t) override {}

  private:
    Value varRanks = "10";
};

class Items : public FilterList {
  public:
    std::int32_t Count() override { return 1; }
    std::shared_ptr<FilterItem> Item(std::int32_t) override { return objRank; }
    std::shared_ptr<FilterItem> Item(std::string_view key) override
    {
        return EqualsNoCase(key, objRank->Name()) ? objRank : nullptr;
    }

  private:
    std::shared_ptr<FilterItem> objRank = std::make_shared<RankItem>();
};

// Without a dialog nobody calls the operations on fields.
class Filter : public ReportFilterObject {
  public:
    explicit Filter(std::shared_ptr<LoginContext> login) : objLogin(std::move(login)) {}

    std::string FilterID() override { return {}; }
    std::shared_ptr<LoginContext> Login() override { return objLogin; }
    std::shared_ptr<kavelin::FilterList> FilterList() override { return objItems; }
    std::shared_ptr<NamedValues> ContextArgs() override { return nullptr; }
    Value GetFieldValue(const std::string& key) override { return objItems->Item(key)->varValue(); }
    void SetFieldValue(const std::string& key, const Value& value) override
    {
        objItems->Item(key)->SetvarValue(value);
    }
    void SetFieldRefCondition(const std::string&, const std::string&, const std::string&) override {}
    void SetFieldFlag(const std::string&, bool) override {}
    void SetFieldLocked(const std::string&, bool) override {}
    void RefreshFieldList(const std::string&, const std::string&, const std::string&) override {}
    void SetFieldRangeList(const std::string&, const std::string&) override {}
    std::string GetWhereWithToken(std::int32_t) override { return {}; }

  private:
    std::shared_ptr<LoginContext> objLogin;
    std::shared_ptr<kavelin::FilterList> objItems = std::make_shared<Items>();
};

class Result : public DataSource {
  public:
    void SetType(std::int16_t) override {}  // always 2: a table
    std::string sql() override { return kTable; }
};

class Argument : public ReportCallArgs {
  public:
    explicit Argument(std::shared_ptr<LoginContext> login)
        : objLogin(std::move(login)), objFilter(std::make_shared<Filter>(objLogin))
    {
    }

    std::shared_ptr<kavelin::DataSource> DataSource() override { return objResult; }
    std::shared_ptr<LoginContext> Login() override { return objLogin; }
    std::shared_ptr<ReportFilterObject> RawFilter() override { return objFilter; }
    std::shared_ptr<NamedValues> Args() override { return nullptr; }
    std::string LangID() override { return kLanguage; }

    // This report calls nothing by name.
    Variant Get(std::string_view member) override { return Refuse(member); }
    void Put(std::string_view member, const Variant&) override { Refuse(member); }
    Variant Call(std::string_view member, const std::vector<Variant>&) override { return Refuse(member); }

  private:
    static Variant Refuse(std::string_view member)
    {
        throw Error("The argument has no member " + std::string(member) + ".");
    }

    std::shared_ptr<LoginContext> objLogin;
    std::shared_ptr<ReportFilterObject> objFilter;
    std::shared_ptr<kavelin::DataSource> objResult = std::make_shared<Result>();
};

// While it lives, the library on this thread has what it needs from outside. What a report left open is
// closed with it, before main ends.
class Library {
  public:
    explicit Library(const host::ConnectionSource& connections)
    {
        host::PlatformSettings settings;
        settings.connections = connections;
        settings.onMessage = [](const host::ShownMessage& message) { std::cerr << message.text << "\n"; };
        settings.language = kLanguage;
        UsePlatform(std::make_shared<host::HostPlatform>(std::move(settings)));
    }
    ~Library() { UsePlatform(nullptr); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

std::shared_ptr<LoginContext> NewLogin(const std::string& connectionText, int year)
{
    host::LoginSettings settings;
    settings.connectionText = connectionText;
    settings.accountId = "001";
    settings.userId = "demo";
    settings.language = kLanguage;
    settings.year = year;
    settings.month = 12;
    return std::make_shared<host::HostLogin>(settings, nullptr);
}

void PrintRows(Connection& connection, const std::string& select)
{
    const auto rows =
        connection.OpenRecordset(select, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    const auto print = [&](auto cell) {
        for (int field = 0; field < rows->FieldCount(); ++field)
            std::cout << (field > 0 ? "\t" : "") << cell(field);
        std::cout << "\n";
    };
    print([&](int field) { return rows->FieldName(field); });
    for (; !rows->Eof(); rows->MoveNext())
        print([&](int field) {
            const Value value = rows->Field(field);
            return value.IsNull() ? "" : ToText(value);
        });
}

void RunCapitalShare(const std::string& path, int year)
{
    const std::string connectionText = host::EmbeddedConnectionString(path, kLanguage);
    const host::ConnectionSource connections;
    // The host's own connection. Open from before the report, so that the account stays loaded.
    const auto connection = connections.Open("host", connectionText, "");
    const Library library(connections);

    clsProPortion report;
    Argument e(NewLogin(connectionText, year));
    report.GETSQL(e);
    PrintRows(*connection, std::string("select * from ") + kTable + " order by cNo");
}

}  // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::cerr << "usage: " << arguments[0] << " ACCOUNT.kavelin YEAR\n";
        return 2;
    }
    try {
        RunCapitalShare(arguments[1], std::stoi(arguments[2]));
    } catch (const std::exception& e) {
        std::cerr << e.what() << "\n";
        return 1;
    }
    return 0;
}
