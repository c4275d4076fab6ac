#include "journal/WtFinish.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

std::string UpdateVoucherNumber(const std::string& table)
{
    return "Update " + table + " set 凭证号=gl_AccVouch.ino_id  from  " + table +
           " Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID";
}

std::string DeleteOtherVouchers(const std::string& table, const std::string& number)
{
    return "Delete " + table + " Where (IsNull(凭证号,N'') <> N'" + number + "' And N'" + number +
           "' <> N'')";
}

std::string UpdateShownVoucher(const std::string& table)
{
    return "Update " + table +
           " set 凭证号=gl_AccVouch.cSign + cast(gl_AccVouch.ino_id as nvarchar(30))  from  " + table +
           " Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID";
}

std::string ClearOtherFees(const std::string& table)
{
    return "Update " + table +
           " set iProcessFee=Null,imaterialfee = Null Where IsNull(业务类型,N'') <> N'委外加工'";
}

std::string UpdateBusType(const std::string& table, const std::string& language)
{
    return "Update " + table + " set 业务类型=AA.EnumName from " + table +
           " Wt inner join aa_enum AA on "
           " Wt.业务类型=AA.EnumCode where AA.EnumType='IA.BusType' and AA.LocaleID='" +
           language + "'";
}

}  // namespace

bool FinishWtVouchers(const std::string& strTable, const std::string& strPzNoID)
{
    return IgnoreErrors([&] {
        Connection& connection = Existing(ModPub().gcnnAccount);
        connection.Execute(UpdateVoucherNumber(strTable));
        connection.Execute(DeleteOtherVouchers(strTable, strPzNoID));
        connection.Execute(UpdateShownVoucher(strTable));
        connection.Execute(ClearOtherFees(strTable));
    });
}

bool FinishWtBusType(const std::string& strTable)
{
    const std::string& language = ModPub().gstrLanguage;
    if (language == "zh-CN")
        return true;
    return ShowErrors([&] { Existing(ModPub().gcnnAccount).Execute(UpdateBusType(strTable, language)); });
}

}  // namespace kavelin
