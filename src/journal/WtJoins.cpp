#include "journal/WtJoins.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

// The planned price of the goods, which depends on those free items that the inventory keeps.
std::string FreeItems()
{
    return Numbered(1, 10,
                    "and ((Isnull(InvCheckFreeIA870.cFree{}, N'') = isnull(NoSub.cfree{},N'')"
                    " and inventory.bCheckFree{}=1) or inventory.bCheckFree{} = 0) ");
}

std::string UnitNumber(std::int32_t number)
{
    return "  left join ComputationUnit unit2 on Inventory.cGroupCode=unit2.cGroupcode and unit2.bmainunit=0"
           " and unit2.inumber=" +
           std::to_string(number);
}

std::string UnitsOfInventory(std::int32_t number)
{
    return " left join ComputationUnit unit1 on Inventory.cComunitcode=unit1.cComunitcode" +
           (number != 0
                ? UnitNumber(number)
                : "  left join ComputationUnit unit2 on Inventory.cSTComUnitCode=unit2.cComunitcode ");
}

std::string UnitsOfDocument(std::int32_t number)
{
    return " Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode" +
           (number != 0 ? UnitNumber(number)
                        : "  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode ");
}

}  // namespace

std::string JoinPosted(std::int32_t lngAssUnitNo)
{
    return EndLines({
        " Inner join Inventory on Inventory.cInvCode=NoSub.cInvCode"
        " left join vendor on vendor.cVenCode=NoSub.cVenCode"
        " left join Customer on Customer.cCusCode=NoSub.cCusCode ",
        "left join Warehouse WH on NoSub.cWhCode=WH.cWhCode"
        " left join Department Dep on NoSub.cAccDep=Dep.cDepCode"
        " left join Rd_Style RD on NoSub.cRdCode=RD.cRdCode ",
        " left join AA_Enum on AA_Enum.EnumType ='IA.costsource' and aa_enum.EnumCode =NoSub.costsource"
        " and AA_Enum.LocaleId=DBO.UDF_GetLocaleID() ",
        " left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode"
        " left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode " +
            FreeItems(),
        UnitsOfInventory(lngAssUnitNo),
    });
}

std::string JoinUnposted(std::int32_t lngAssUnitNo)
{
    return EndLines({
        " left join Inventory on Inventory.cInvCode = NoSub.cInvCode"
        " left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode"
        " left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode " +
            FreeItems(),
        UnitsOfDocument(lngAssUnitNo),
        " left join vendor on vendor.cvenname=NoSub.cvenname ",
    });
}

}  // namespace kavelin
