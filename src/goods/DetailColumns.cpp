#include "goods/DetailColumns.h"

#include "frame/Statement.h"
#include "frame/Text.h"

#include <span>
#include <string_view>

namespace kavelin {

namespace {

// One column, or with numbers one for each, "{}" being the number.
struct DetailColumn {
    std::string_view name;
    std::string_view value;      // of a ledger line
    std::string_view type = {};  // whose type the column has; that of the value if empty
    int first = 0, last = 0;
};

constexpr DetailColumn kKeys[] = {
    {"ipzid", "IA_EnSubsidiary.ipzid"},
    {"iSrcID", "IA_EnSubsidiary.iSrcID"},
    {"cSRcVoutype", "IA_EnSubsidiary.cSRcVoutype"},
};

// The booking date stands in a column of text, since other kinds of rows have their caption there.
constexpr DetailColumn kAttributes[] = {
    {"autoid", "cast (AutoID as int)"},
    {"dKeepDate", "convert(nvarchar(10),IA_EnSubsidiary.dKeepDate,121)", "IA_EnSubsidiary.cPZdigest"},
    {"cAccounter", "IA_EnSubsidiary.cAccounter"},
    {"dVouDate", "IA_EnSubsidiary.dVouDate"},
    {"dtAudit", "IA_EnSubsidiary.dtAudit"},
    {"cPZID", "IA_EnSubsidiary.cPZID"},
    {"cDifPZid", "p.cDifPZID", "IA_EnSubsidiary.cPZID"},
    {"cVouCode", "IA_EnSubsidiary.cVouCode"},
    {"cPZdigest", "IA_EnSubsidiary.cPZdigest"},
    {"cVouchName", "AA_Enum.EnumName"},
    {"cVouType", "IA_EnSubsidiary.cVouType"},
    {"cBusType", "IA_EnSubsidiary.cBusType"},
    {"cRdCode", "IA_EnSubsidiary.cRdCode"},
    {"cRdName", "r.cRdName"},
    {"cWhCode", "IA_EnSubsidiary.cWhCode"},
    {"cWhName", "w.cWhName"},
    {"cInvCCode", "inventory.cInvCCode"},
    {"cInvCName", "ic.cInvCName"},
    {"cInvCode", "IA_EnSubsidiary.cInvCode"},
    {"cInvName", "inventory.cInvName"},
    {"cInvAddCode", "inventory.cInvAddCode"},
    {"cInvStd", "inventory.cInvStd"},
    {"cComUnitCode", "inventory.cComUnitCode"},
    {"cFree{}", "IA_EnSubsidiary.cFree{}", "", 1, 10},
    {"cInvDefine{}", "inventory.cInvDefine{}", "", 1, 16},
    {"cCCCode", "cc.cCCCode"},
    {"cCCName", "cc.cCCName"},
    {"cCusCode", "IA_EnSubsidiary.cCusCode"},
    {"cCusName", "c.cCusName"},
    {"cAccDep", "IA_EnSubsidiary.cAccDep"},
    {"cDepName", "d.cDepName"},
    {"cItem_class", "IA_EnSubsidiary.cItem_class"},
    {"cItemCName", "IA_EnSubsidiary.cItemCName"},
    {"cItemCode", "IA_EnSubsidiary.cItemCode"},
    {"cName", "IA_EnSubsidiary.cName"},
    {"cDefine{}", "IA_EnSubsidiary.cDefine{}", "", 1, 16},
    {"cDefine{}", "IA_EnSubsidiary.cDefine{}", "", 22, 37},
    {"cHandler", "IA_EnSubsidiary.cHandler"},
    {"cMemo", "IA_EnSubsidiary.cMemo"},
};

// The result has the source line's number under this name.
constexpr DetailColumn kBusinessNumber[] = {{"cBusCode", "IA_EnSubsidiary.cBusCode"}};

// `piece` of each column: {name}, {value} and {type}.
std::string Written(std::span<const DetailColumn> columns, std::string_view piece)
{
    std::string text;
    for (const DetailColumn& column : columns) {
        std::string written = ReplaceAll(piece, "{name}", column.name);
        written = ReplaceAll(written, "{value}", column.value);
        written = ReplaceAll(written, "{type}", column.type.empty() ? column.value : column.type);
        text += Numbered(column.first, column.last, written);
    }
    return text;
}

std::string AllWritten(std::string_view piece)
{
    return Written(kKeys, piece) + Written(kAttributes, piece) + Written(kBusinessNumber, piece);
}

}  // namespace

std::string DetailTypes()
{
    constexpr std::string_view kTyped = "{type} as {name},";
    return EndLines({
        Written(kKeys, kTyped),
        "cast (AutoID as int) as flag,",  // of the type of the line's number
        Written(kAttributes, kTyped),
        Written(kBusinessNumber, kTyped),
    });
}

std::string DetailNames()
{
    return AllWritten("{name},");
}

std::string DetailValues()
{
    return AllWritten("{value},");
}

std::string DetailAttributes()
{
    return "a.flag," + Written(kKeys, "a.{name},") + Written(kAttributes, "a.{name},");
}

}  // namespace kavelin
