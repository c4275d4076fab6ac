// The ledger objects of the suite, served from the account itself: fiscal months from VosSystem..UA_Period,
// options from AccInformation.
#pragma once

#include "frame/host/SuiteObjects.h"
#include "host/HostConnection.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::host {

class HostLedgerLogin : public LedgerLogin {
  public:
    explicit HostLedgerLogin(ConnectionSource connections) : objConnections(std::move(connections)) {}

    void Initialise(const std::string& connectionText, const std::string& passwordText, bool first,
                    bool second) override;

    // Opened at the first call after Initialise and kept.
    std::shared_ptr<Connection> DbConnection() override;

  private:
    ConnectionSource objConnections;
    std::shared_ptr<Connection> cnnLedger;
    std::string strConnectionText;
    std::string strPassword;
};

class HostLedgerParams : public LedgerParams {
  public:
    std::string Year() override { return strYear; }
    std::string ValueStyle() override { return strValueStyle; }
    std::string InventoryQualifier() override { return {}; }  // the table lies in the account itself

    void Set(std::string year, std::string valueStyle);

  private:
    std::string strYear;
    std::string strValueStyle;
};

class HostLedgerPub : public LedgerPub {
  public:
    explicit HostLedgerPub(std::string accountId) : strAccountId(std::move(accountId)) {}

    void SetLogin(std::shared_ptr<LedgerLogin>) override {}
    bool Reload(const std::string&, const std::string&) override { return true; }

    // Throws Error for a year that is no number or that the account doesn't have.
    std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& account) override;

    // All of them, whatever the login's year: ascending, without the sentinel year 9999.
    std::vector<std::string> GetAccountYears(const std::string& year, Connection& account) override;

    // The account keeps its options for all years alike. `login` and `params` must be this host's.
    void GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params) override;

  private:
    std::string Periods() const;  // "from ... where ..." over the account's months

    std::string strAccountId;
};

// First and last day of something, as YYYY-MM-DD.
struct PeriodDays {
    std::string first;
    std::string last;
};

// The days of the account's fiscal months from one to the other, each "2008.07"; an empty end is open. Throws
// Error if the account has no month among them.
PeriodDays DaysOfPeriods(Connection& account, const std::string& accountId, const std::string& from,
                         const std::string& to);

}  // namespace kavelin::host
