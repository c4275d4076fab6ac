#include "embedded/bind/LongStatements.h"

namespace kavelin::embedded {

namespace {

// `piece` for the numbers 1 to `count`, the number in place of each #.
std::string Repeat(int count, const std::string& piece, const std::string& between = ", ")
{
    std::string text;
    for (int k = 1; k <= count; ++k) {
        text += k == 1 ? "" : between;
        for (const char c : piece)
            text += c == '#' ? std::to_string(k) : std::string(1, c);
    }
    return text;
}

std::string InsertOverTenTables()
{
    return "insert into Journal (" + Repeat(124, "字段_#") + ")\r\nselect " +
           Repeat(60, "isnull(s.cText#, N'') as t#") + ",\r\n" +
           Repeat(34, "case when s.bRdFlag = 1 then s.nMoney# else -1 * isnull(s.iNum#, 0) end as m#") +
           ",\r\n" +
           Repeat(30,
                  "case when s.iMonth >= 7 then convert(nvarchar(10), s.dDate, 121) + s.cText# "
                  "else cast(s.iYear as nvarchar(4)) end as y#") +
           "\r\nfrom Ledger s " +
           Repeat(9, "left join Master# m# on m#.cCode = s.cText# and m#.bUsed = 1", " ") +
           "\r\nwhere s.dDate >= '2008-01-01' and s.cText1 >= N'01' and s.cText1 <= N'99' and " +
           Repeat(9, "(m#.cName like N'a%' or m#.cCode is null)", " and ") + "\r\norder by s.AutoID";
}

std::string SelectOf240Columns()
{
    return "select " + Repeat(60, "s.cText#") + ", " + Repeat(60, "isnull(s.iNum#, 0) as n#") + ", " +
           Repeat(60, "sum(s.nMoney#) as s#") + ", " +
           Repeat(60, "case when sum(s.iNum#) = 0 then null else sum(s.nMoney#) / sum(s.iNum#) end as u#") +
           " from Ledger s inner join Master1 m on m.cCode = s.cText1 where s.iYear = 2008 group by " +
           Repeat(60, "s.cText#") + ", " + Repeat(60, "isnull(s.iNum#, 0)") + " order by s.cText1";
}

std::string RunningBalanceOf100Columns()
{
    return "update Ledger set " + Repeat(100, "iNum# = x.isum#") +
           " from Ledger inner join (select a.AutoID, " +
           Repeat(100, "sum(isnull(b.iNum#, 0) + isnull(b.nMoney#, 0)) as isum#") +
           " from Ledger a, Ledger b where b.AutoID <= a.AutoID group by a.AutoID) x on x.AutoID = Ledger.AutoID";
}

}  // namespace

std::string TablesOfLongStatements()
{
    return "create table Ledger (AutoID int, iYear smallint, iMonth tinyint, bRdFlag bit not null, dDate datetime, " +
           Repeat(100, "cText# nvarchar(60), iNum# float, nMoney# money") + ")\r\n" +
           Repeat(9, "create table Master# (cCode nvarchar(20) not null, cName nvarchar(255), bUsed bit)",
                  "\r\n") +
           "\r\ncreate table Journal (" + Repeat(124, "字段_# nvarchar(300)") + ")";
}

std::vector<LongStatement> LongStatements()
{
    return {
        {"insert of 124 columns over ten tables", InsertOverTenTables()},
        {"select of 240 columns, half of them sums", SelectOf240Columns()},
        {"running balance of 100 columns", RunningBalanceOf100Columns()},
    };
}

}  // namespace kavelin::embedded
