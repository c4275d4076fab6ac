#include "frame/TempTables.h"

#include "frame/Errors.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

#include <limits>

namespace kavelin {

namespace {

// "{6F9619FF-8B86-D011-B42D-00C04FC964FF}"
std::string BracedGuid(const Guid& guid)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "{";
    for (std::size_t i = 0; i < guid.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text += '-';
        text += kDigits[guid[i] >> 4];
        text += kDigits[guid[i] & 15];
    }
    return text + "}";
}

std::string SelectOne(const std::string& table, const std::string& field, const std::string& value)
{
    return "Select top 1 " + field + " from " + table + " where " + field + "= N'" + value + "'";
}

// "TEMPDB..[a]" and "a" are the same table.
std::string BareName(const std::string& table)
{
    constexpr std::string_view kDatabase = "TEMPDB..";
    std::string name = table;
    if (ToUpper(Left(name, kDatabase.size())) == kDatabase)
        name = name.substr(kDatabase.size());
    if (name.starts_with("[") && name.ends_with("]"))
        name = name.substr(1, name.size() - 2);
    return name;
}

std::string DropIfInTempdb(const std::string& name)
{
    return "if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb.." + name +
           "')) Drop Table tempdb..[" + name + "]";
}

}  // namespace

std::string CreateGuidText(std::string_view strRemove)
{
    std::string text = BracedGuid(CurrentPlatform().CreateGuid());
    for (std::size_t position = 0; position < strRemove.size();) {
        const std::size_t start = position;
        NextCharacter(strRemove, position);
        text = ReplaceAll(text, strRemove.substr(start, position - start), "");
    }
    for (const std::string_view mark : {"-", "{", "}"})
        text = ReplaceAll(text, mark, "");
    return text;
}

std::string GetClientSuffix()
{
    const std::int32_t number = ToInt32(CurrentPlatform().CreateClientNumber()->Number());
    return std::to_string(number);
}

std::string GetClientTableName(std::string_view strFixedPart)
{
    const std::string machine = Machine().MachineName();
    return std::string(strFixedPart) + machine + GetClientSuffix();
}

std::string InTempdb(const std::string& strTable)
{
    return "Tempdb..[" + strTable + "]";
}

void DropTableQuiet(Connection& connection, const std::string& strTable)
{
    try {
        connection.Execute("drop table " + strTable);
    } catch (...) {
    }
}

void DropTempdbTable(const std::string& strTable)
{
    ShowErrors([&] {
        const std::string name = BareName(strTable);
        if (name.empty())
            throw Error(Resources().GetResString("Orvo.IA.CHHSSQL.07860"));
        Existing(ModPub().gcnnAccount).Execute(DropIfInTempdb(name));
    });
}

bool RecordExists(const std::string& strTable, const std::string& strField, const std::string& strValue)
{
    const auto rows = Existing(ModPub().gcnnAccount)
                          .OpenRecordset(SelectOne(strTable, strField, strValue), CursorLocation::Client,
                                         CursorType::ForwardOnly, LockType::ReadOnly);
    return !rows->Eof();
}

std::int16_t SumDigits(std::string_view strDigits)
{
    std::int32_t sum = 0;
    for (const char digit : strDigits) {
        if (digit < '0' || digit > '9')
            throw ConversionError("Type mismatch: \"" + std::string(strDigits) + "\" holds more than digits");
        sum += digit - '0';
        if (sum > std::numeric_limits<std::int16_t>::max())
            throw OverflowError("Overflow: the digits add up to more than 32,767");
    }
    return static_cast<std::int16_t>(sum);
}

}  // namespace kavelin
