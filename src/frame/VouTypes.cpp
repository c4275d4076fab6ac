#include "frame/VouTypes.h"

#include "frame/ModPub.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

template <class Write>
std::string JoinParts(const std::string& list, Write write)
{
    std::string joined;
    if (list.empty())
        return joined;
    for (const std::string& part : Split(list, "\t"))
        joined += (joined.empty() ? "" : ",") + write(std::string(Trim(part)));
    return joined;
}

struct Halves {
    std::string_view settled, estimated;  // the type as it stands, and the pseudo code
};

constexpr Halves kHalves[] = {{"01", "011"}, {"30", "301"}, {"70", "701"}};

struct Widened {
    std::string_view code, codes;
};

constexpr Widened kWidened[] = {{"'32'", "'32','3201'"}, {"'25'", "'25','2501'"}, {"'05'", "'05','06'"}};
constexpr Widened kDispatches = kWidened[2];

bool Holds(std::string_view list, std::string_view quoted)
{
    return list.find(quoted) != list.npos;
}

std::string Quoted(std::string_view code)
{
    return "'" + std::string(code) + "'";
}

// Together with a comma beside it.
std::string WithoutCode(std::string list, const std::string& quoted)
{
    for (const std::string& form : {"," + quoted, quoted + ",", quoted})
        list = ReplaceAll(list, form, "");
    return list;
}

void TakeHalf(VouTypes& types, std::string_view type, std::string_view code, std::string_view flag)
{
    const std::string condition = "(cVouType='" + std::string(type) + "' and " + std::string(flag) + ") ";
    types.strFlagged += (types.strFlagged.empty() ? " " : " OR ") + condition;
    types.strMain = WithoutCode(types.strMain, Quoted(code));
}

}  // namespace

std::string QuoteCodeList(const std::string& strList)
{
    return JoinParts(strList, [](const std::string& code) { return Quoted(code); });
}

std::string QuoteBusTypes(const std::string& strList)
{
    return JoinParts(strList, [](const std::string& shown) {
        return "N'" + Resources().GetEnumCode("IA.Bustype", shown) + "'";
    });
}

std::string QuoteBusTypeList(const std::string& strList)
{
    // Chinese letters have no case, but the N in front of the quote has.
    constexpr std::string_view kShort = "N'委托代销',N'委托'";
    return ReplaceAll(QuoteBusTypes(strList), "N'委托代销'", kShort);
}

VouTypes SplitVouTypes(const std::string& strVouTypes)
{
    VouTypes types;
    types.strMain = strVouTypes;
    for (const Halves& halves : kHalves) {
        const bool settled = Holds(strVouTypes, Quoted(halves.settled));
        const bool estimated = Holds(strVouTypes, Quoted(halves.estimated));
        if (settled && !estimated)
            TakeHalf(types, halves.settled, halves.settled, "bFlag<>1");
        if (estimated && !settled)
            TakeHalf(types, halves.settled, halves.estimated, "bFlag=1");
    }
    for (const Widened& widened : kWidened)
        types.strMain = ReplaceAll(types.strMain, widened.code, widened.codes);

    types.strPlain = strVouTypes;
    for (const Halves& halves : kHalves)
        types.strPlain = ReplaceAll(types.strPlain, Quoted(halves.estimated), Quoted(halves.settled));
    types.strPlain = ReplaceAll(types.strPlain, kDispatches.code, kDispatches.codes);
    return types;
}

}  // namespace kavelin
