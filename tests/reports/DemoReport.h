// A report run by the host on an account of the demo company.
#pragma once

#include "demo/profiles/Profile.h"
#include "host/ReportRun.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::test {

// Made once a test program, with few lines; goes with the program.
std::string AccountOf(const demo::Profile& profile);

class DemoReport {
  public:
    // `settings` are KEY=VALUE as on the command line.
    DemoReport(const demo::Profile& profile, const std::string& report,
               const std::vector<std::string>& settings, const std::string& user = "demo");

    // A query on the account; "{}" in it stands for the result table. Fields between " | ", rows in lines.
    std::string Rows(const std::string& sql);
    std::vector<std::vector<std::string>> Table(const std::string& sql);

    const std::vector<host::ShownMessage>& Messages() const { return objRun->Messages(); }

  private:
    std::unique_ptr<host::ReportRun> objRun;
};

std::vector<std::string> ProfileNames();

// For test names: "goodssent" of "goods-sent".
std::string PlainName(std::string name);

}  // namespace kavelin::test
