// The runs by which two accounts are compared: every report with its defaults, and with filters that send it
// other ways.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::server {

// "stock-summary dVouDate=2008-01-01..2008-12-31", the words that stand for codes of the account filled in.
struct ReportCase {
    std::string report;
    std::vector<std::string> settings;

    std::string Told() const;
};

// What filters name of an account: its year, its busiest items, first class, warehouse and customer class.
struct AccountCodes {
    std::string year, item, transitItem, itemClass, warehouse, customerClass;
};

AccountCodes CodesOf(Connection& account);

// Users of an account: one without restrictions, and the first that has some.
std::vector<std::string> UsersOf(Connection& account);

std::vector<ReportCase> ReportCases(const AccountCodes& codes);

}  // namespace kavelin::test::server
