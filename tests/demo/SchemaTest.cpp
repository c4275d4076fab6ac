#include "demo/ObjectCatalogue.h"
#include "demo/SchemaAccount.h"
#include "demo/Scripts.h"
#include "embedded/EmbeddedAccount.h"
#include "frame/Text.h"
#include "host/DataFiles.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <set>

namespace kavelin::demo {
namespace {

using embedded::ColumnInfo;
using embedded::Database;
using embedded::ObjectInfo;
using embedded::ObjectKind;

std::map<std::string, ObjectInfo, LessNoCase> ObjectsOf(const SchemaAccount& account)
{
    std::map<std::string, ObjectInfo, LessNoCase> objects;
    for (const Database database : {Database::Account, Database::System})
        for (ObjectInfo& object : account.Account().Objects(database))
            objects.emplace(object.name, std::move(object));
    return objects;
}

std::set<std::string> ColumnsOf(const ObjectInfo& object)
{
    std::set<std::string> texts;
    for (const ColumnInfo& column : object.columns)
        texts.insert(column.name + " " + ToText(column.type) + (column.identity ? " identity" : "") +
                     (object.kind == ObjectKind::View ? ""
                      : column.nullable               ? " null"
                                                      : " not null"));
    return texts;
}

std::set<std::string> ColumnsOf(const CatalogueObject& object)
{
    std::set<std::string> texts;
    for (const CatalogueColumn& column : object.columns)
        texts.insert(column.name + " " + column.type + (column.identity ? " identity" : "") +
                     (object.view       ? ""
                      : column.nullable ? " null"
                                        : " not null"));
    return texts;
}

std::string InOneLine(const std::set<std::string>& texts, const std::set<std::string>& without)
{
    std::string line;
    for (const std::string& text : texts)
        if (!without.contains(text))
            line += text + "; ";
    return line;
}

TEST(Schema, HasEveryObjectOfTheCatalogueWithExactlyItsColumns)
{
    const SchemaAccount account;
    const auto objects = ObjectsOf(account);
    for (const CatalogueObject& listed : ReadObjects()) {
        const auto found = objects.find(listed.name);
        ASSERT_NE(found, objects.end()) << listed.name;
        EXPECT_EQ(found->second.kind == ObjectKind::View, listed.view) << listed.name;
        const std::set<std::string> wanted = ColumnsOf(listed);
        const std::set<std::string> there = ColumnsOf(found->second);
        EXPECT_EQ(InOneLine(wanted, there), "") << "missing in " << listed.name;
        EXPECT_EQ(InOneLine(there, wanted), "") << "too many in " << listed.name;
    }
}

// The schema's own objects, such as the views that others have in common, can be told by their names.
TEST(Schema, HasNoOtherObjectButItsOwn)
{
    const SchemaAccount account;
    std::set<std::string> others{"sysobjects"};
    for (const CatalogueObject& listed : ReadObjects())
        others.insert(listed.name);
    for (const auto& [name, object] : ObjectsOf(account))
        EXPECT_TRUE(others.contains(name) || name.starts_with("Demo_")) << name;
}

TEST(Schema, KeepsTheColumnsOfTheSystemDatabaseApart)
{
    const SchemaAccount account;
    for (const ObjectInfo& object : account.Account().Objects(Database::Account))
        EXPECT_NE(object.name, "UA_Period");
}

TEST(Schema, NamesBareColumnsOnOneObjectOnly)
{
    const SchemaAccount account;
    const auto objects = ObjectsOf(account);
    int checked = 0;
    for (const SingleNames& single : ReadSingleNames())
        for (const std::string& name : single.objects) {
            const auto object = objects.find(name);
            ASSERT_NE(object, objects.end()) << name;
            for (const std::string& column : single.columns) {
                ++checked;
                EXPECT_FALSE(std::ranges::any_of(
                    object->second.columns,
                    [&](const ColumnInfo& info) { return EqualsNoCase(info.name, column); }))
                    << name << "." << column;
            }
        }
    EXPECT_GT(checked, 500);
}

TEST(Schema, TellsTheNumbersOfLedgerLinesItself)
{
    SchemaAccount account;
    account.Execute(
        "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, bRdFlag, "
        "cInvCode) values (2008, 1, '2008-01-02', '2008-01-03', N'张三', N'01', 1, N'A1'), "
        "(2008, 1, '2008-01-02', '2008-01-03', N'张三', N'01', 1, N'A2')");
    EXPECT_EQ(account.Rows("select AutoID, bFlag from IA_Subsidiary order by AutoID"),
              (std::vector<std::string>{"1|0", "2|0"}));
}

// --- texts -------------------------------------------------------------------------------------

using Texts = std::map<std::string, std::string>;  // "type|code|language" -> text

Texts TextsOfTheHost()
{
    Texts texts;
    for (const std::string locale : {"zh-CN", "en-US"}) {
        const auto file = nlohmann::json::parse(host::DataFile("texts/" + locale + ".json"));
        for (const auto& [type, codes] : file.at("enums").items())
            for (const auto& [code, text] : codes.items())
                texts[type + "|" + code + "|" + locale] = text.get<std::string>();
    }
    return texts;
}

TEST(Schema, HoldsTheShownTextsThatTheHostHolds)
{
    SchemaAccount account;
    Texts ofAccount;
    for (const std::string& row :
         account.Rows("select EnumType, EnumCode, LocaleID, EnumName from AA_Enum order by EnumType")) {
        const std::size_t text = row.rfind('|');
        ofAccount[row.substr(0, text)] = row.substr(text + 1);
    }
    EXPECT_EQ(ofAccount, TextsOfTheHost());
}

TEST(Schema, HasATextForEveryVoucherType)
{
    SchemaAccount account;
    for (const std::string type : {"IA.BillforVch", "IA.VchType"})
        for (const std::string locale : {"zh-CN", "en-US"})
            EXPECT_EQ(account.Single("select count(*) from VouchType v inner join AA_Enum e "
                                     "on e.EnumCode = v.cVouchName and e.EnumType = '" +
                                     type + "' and e.LocaleID = '" + locale + "'"),
                      "26");
}

TEST(Schema, ShowsTextsInTheLanguageOfTheConnection)
{
    const std::string query = "select EnumName from v_aa_enum where EnumType = 'ia.repwt' order by EnumName";
    EXPECT_EQ(SchemaAccount("en-US").Rows(query),
              (std::vector<std::string>{"Posted documents", "Unposted documents"}));
    EXPECT_EQ(SchemaAccount("zh-CN").Rows(query), (std::vector<std::string>{"已记账单据", "未记账单据"}));
}

}  // namespace
}  // namespace kavelin::demo
