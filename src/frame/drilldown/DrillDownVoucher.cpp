#include "frame/drilldown/DrillDownVoucher.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/drilldown/DrillDownSteps.h"

#include <optional>

namespace kavelin {

namespace {

// What the ledger starts for a voucher.
struct LedgerCommand {
    std::string_view system;  // module that made it
    std::string_view command;
    std::string_view sign;  // under which the ledger keeps vouchers of the module
};

constexpr LedgerCommand kPurchases = {"PU", "PU0101", "PU"};
constexpr LedgerCommand kInventory = {"IA", "*IACXPZ", "存货核算"};

void TellThatThereIsNone()
{
    std::string text;
    IgnoreErrors([&] { text = Resources().GetResString("Orvo.IA.CHHSSQL.02787"); });
    IgnoreErrors([&] { Resources().ShowMessage(text, kWarning); });
}

struct Ledger {
    std::shared_ptr<LedgerLogin> login;
    std::shared_ptr<Connection> connection;
};

Ledger OpenLedger()
{
    Ledger ledger;
    IgnoreErrors([&] { ledger.login = CurrentPlatform().CreateLedgerLogin(); });
    IgnoreErrors([&] {
        LoginContext& login = Existing(ModPub().gobjLogin);
        const std::string text = login.ConnectionText();
        Existing(ledger.login).Initialise(text, ";PWD=" + login.Password(), false, false);
    });
    IgnoreErrors([&] { ledger.connection = Existing(ledger.login).DbConnection(); });
    return ledger;
}

std::unique_ptr<Recordset> OpenQuiet(const Ledger& ledger, const std::string& sql)
{
    std::unique_ptr<Recordset> rows;
    IgnoreErrors([&] {
        rows = Existing(ledger.connection)
                   .OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
    });
    return rows;
}

// The first field of the first row; nothing if there is no row.
std::optional<Value> ReadFirst(const Ledger& ledger, const std::string& sql)
{
    const auto rows = OpenQuiet(ledger, sql);
    if (!rows)
        return std::nullopt;
    std::optional<Value> first;
    if (!rows->Eof()) {
        first.emplace();
        IgnoreErrors([&] { first = rows->Field(0); });
    }
    IgnoreErrors([&] { rows->Close(); });
    return first;
}

// 0 if no ledger has the voucher.
std::int16_t FindYear(const Ledger& ledger, std::span<const YearQuery> queries, const std::string& id)
{
    std::int16_t year = 0;
    for (const YearQuery& query : queries) {
        const auto found = ReadFirst(ledger, std::string(query.before) + id + std::string(query.behind));
        if (!found)
            continue;
        IgnoreErrors([&] { year = ToInt16(*found); });
        break;
    }
    return year;
}

// The sign under which cost accounting made the voucher.
std::string SelectCostSign(const std::string& id)
{
    return "select top 1 coutsign from GL_accvouch where (coutsysname=N'CA' and coutno_id=N'" + id +
           "' and (iflag is null or iflag=2))";
}

std::string FindCostSign(const Ledger& ledger, const std::string& id)
{
    std::string sign;
    IgnoreErrors([&] { sign = ToText(ReadFirst(ledger, SelectCostSign(id)).value_or("")); });
    return sign;
}

struct FoundVoucher {
    DrillTarget target;
    std::string id;
    std::int16_t year;
    LedgerCommand command;
};

void StartVoucher(const DrillDownRules& rules, const Ledger& ledger, const FoundVoucher& found)
{
    const Variant login = HostObjectPtr(ModPub().gobjLogin);
    const Value year = std::int32_t{found.year};

    const auto ledgerPublic = CreateQuiet("Tessel.clsPub");
    const auto voucher = CreateQuiet("Brannic.clsPZ");
    if (const auto portal = FindPortal(rules, found.target))
        IgnoreErrors([&] { Existing(ledgerPublic).Put("g_business", HostObjectPtr(portal)); });
    IgnoreErrors([&] { Existing(ledgerPublic).Put("oLogin", login); });
    IgnoreErrors([&] {
        LoginContext& user = Existing(ModPub().gobjLogin);
        const std::vector<Variant> arguments = {
            Value("IA"),
            HostObjectPtr(user.SystemDatabase()),
            HostObjectPtr(ledger.login),
            Value(user.AccountId()),
            year,
            Value(user.UserId()),
            Value(user.Date()),
            Value(user.Password()),
        };
        Existing(ledgerPublic).Call("InitPubs2", arguments);
    });
    IgnoreErrors([&] { Existing(voucher).Put("zzLogin", login); });
    IgnoreErrors([&] { Existing(voucher).Put("zzSys", HostObjectPtr(ledgerPublic)); });
    IgnoreErrors([&] {
        const Value system = found.command.system;
        Existing(voucher).Call("StartUpPz",
                               {system, Value(found.command.command), Value(3), Value("CN"), system,
                                HostObjectPtr(), Value(found.command.sign), Value(found.id), year});
    });
}

bool IsOfPurchases(const std::string& id)
{
    return Left(ToUpper(Trim(id)), 2) == "PU";
}

}  // namespace

bool OpenVoucher(const DrillDownRules& rules, RowArguments& e)
{
    const std::string id = ReadCell(e, rules.voucherCell);
    if (id.empty()) {
        TellThatThereIsNone();
        return false;
    }
    const Ledger ledger = OpenLedger();
    const std::int16_t year = FindYear(ledger, rules.voucherYears, id);
    StartVoucher(rules, ledger,
                 {DrillTarget::Voucher, id, year, IsOfPurchases(id) ? kPurchases : kInventory});
    return true;
}

bool OpenDifferenceVoucher(const DrillDownRules& rules, RowArguments& e)
{
    const std::string id = ReadCell(e, rules.differenceCell);
    const std::string busType = ReadCell(e, rules.differenceBusTypeCell);
    if (id.empty()) {
        TellThatThereIsNone();
        return false;
    }
    const Ledger ledger = OpenLedger();
    const std::int16_t year = FindYear(ledger, rules.differenceYears, id);
    const std::string sign = FindCostSign(ledger, id);
    const LedgerCommand costs = {"CA", "CA0603", sign};
    StartVoucher(
        rules, ledger,
        {DrillTarget::DifferenceVoucher, id, year, EqualsNoCase(busType, "差异调整") ? kInventory : costs});
    return true;
}

}  // namespace kavelin
