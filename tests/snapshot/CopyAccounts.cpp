#include "snapshot/CopyAccounts.h"

#include "demo/AccountFiles.h"
#include "demo/NewAccount.h"
#include "frame/Errors.h"

namespace kavelin::snapshot {

namespace {

const std::filesystem::path& Prepared(const std::filesystem::path& path, OpenAccount::Made made)
{
    if (made == OpenAccount::Made::WithSchema)
        demo::CreateEmptyAccount(path);
    if (made == OpenAccount::Made::Bare)
        embedded::CreateAccount(path.string());
    return path;
}

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

void ExpectSameRows(Recordset& source, Recordset& target, const std::string& table)
{
    ASSERT_EQ(source.RecordCount(), target.RecordCount()) << table;
    for (int row = 1; !source.Eof(); source.MoveNext(), target.MoveNext(), ++row)
        for (int field = 0; field < source.FieldCount(); ++field)
            ASSERT_EQ(source.Field(field), target.Field(field))
                << table << ", row " << row << ", " << source.FieldName(field);
}

}  // namespace

OpenAccount::OpenAccount(const std::filesystem::path& path, Made made)
    : objAccount(embedded::OpenAccount(Prepared(path, made).string())), cnnAccount(demo::ConnectTo(path))
{
}

std::string OpenAccount::Rows(const std::string& sql)
{
    const auto rows = Open(*cnnAccount, sql);
    std::string text;
    for (; !rows->Eof(); rows->MoveNext()) {
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            text += (field > 0 ? "|" : "") + (value.IsNull() ? std::string("NULL") : ToText(value));
        }
        text += '\n';
    }
    return text;
}

CopyResult Copy(Connection& source, CopyTarget& target, const CopyOptions& options)
{
    const AccountObjects objects = ReadObjects(target.Account());
    const CopyPlan plan = PlanCopy(source, &target.Account(), &objects, options.choice);
    return CopyAccount(source, target, plan, options);
}

std::string Refusal(Connection& source, CopyTarget& target, const CopyOptions& options)
{
    try {
        Copy(source, target, options);
    } catch (const Error& error) {
        return error.what();
    }
    return "nothing was refused";
}

void FillWithOddValues(Connection& account)
{
    account.Execute(
        "insert into Inventory (cInvCode, cInvName, cInvStd, cInvAddCode, iInvWeight, iInvSPrice, bSale)"
        " values (N'A''1', N'', NULL, N'blanks behind   ', 0.1, 1e308, 1),"
        " (N'B%_[1]', N'𠀀😀 ünï ß 汉字', N'line\r\nend \\', N'\"quoted\", --', 3333.3333333333335e0,"
        " 2.2250738585072014e-308, 0),"
        " (N'汉字', N'a\\' + N'\r\nb', N'\t', N'Ａ', -1e-300, NULL, 1)");
    account.Execute(
        "insert into Demo_Document (DocID, Kind, cVouType, cVouCode, dVouDate, cDefine4, cDefine5, cDefine7)"
        " values (-2147483648, N'RD', N'01', N'1', '17530101', '18991230', -1, 9007199254740993e0),"
        " (2147483647, N'RD', N'01', N'2', '18991231 23:59:59.997', '99991231 23:59:59.997', NULL, -0.0),"
        " (0, N'', N'', N'', '20080229 12:00:00.003', NULL, 2147483647, 1e0)");
    account.Execute(
        "insert into Pursettlevouchs (ID, iSVQuantity, iSVPrice, MaterialFee)"
        " values (1, 0.30000000000000004, 922337203685477.5807, -922337203685477.5808),"
        " (2, NULL, 0.0001, -0.0001)");
    account.Execute(
        "insert into IA_Summary (iYear, iMonth, cInvCode, iDirect, iNum, iMoney)"
        " values (32767, 255, N'汉字', 0, 5, 1)");
    account.Execute("insert into ia_accountarea (AutoID) values (7), (7), (-1)");
    account.Execute(
        "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd)"
        " values (N'001', 2008, 1, '20080101', '20080131'), (N'002', 2008, 1, '20080101', '20080131')");
}

void ExpectSameTables(Connection& source, Connection& target)
{
    for (const SchemaObject& object : Schema()) {
        if (object.kind != SchemaKind::Table)
            continue;
        std::string order;
        for (const std::string& column : object.key)
            order += (order.empty() ? "" : ", ") + column;
        const std::string sql = "select * from " + object.name +
                                (object.inSystem ? " where cAcc_ID = N'001'" : "") + " order by " + order;
        ExpectSameRows(*Open(source, sql), *Open(target, sql), object.name);
    }
}

}  // namespace kavelin::snapshot
