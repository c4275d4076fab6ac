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
    std::string ValueStyle() override { return strValueStyle; }
    void SetValueStyle(std::string style) { strValueStyle = std::move(style); }

  private:
    std::string strValueStyle;
};

class HostLedgerPub : public LedgerPub {
  public:
    explicit HostLedgerPub(std::string accountId) : strAccountId(std::move(accountId)) {}

    void SetLogin(std::shared_ptr<LedgerLogin>) override {}
    bool Reload(const std::string&, const std::string&) override { return true; }

    // Throws Error for a year that is no number or that the account doesn't have.
    std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& account) override;

    // Ascending, without the sentinel year 9999.
    std::vector<std::string> GetAccountYears(Connection& account) override;

    // The account keeps its options for all years alike. `login` and `params` must be this host's.
    void GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params) override;

  private:
    std::string Periods() const;  // "from ... where ..." over the account's months

    std::string strAccountId;
};

}  // namespace kavelin::host
