// The argument of a drill-down, early-bound and late-bound. Made by RecordingHost.
#pragma once

#include "support/EventLog.h"

#include "frame/Text.h"
#include "frame/host/DrillDownArgs.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace kavelin::test {

// A row; a column that isn't here is an error.
using Cells = std::map<std::string, std::string, LessNoCase>;

struct RowParts {
    std::shared_ptr<EventLog> events;
    std::shared_ptr<LoginContext> login;
    std::string action;
    Cells cells;
    std::map<std::string, HostObjectPtr, LessNoCase> objects;  // late-bound members that only some hosts have
};

// Writes "e.Login", "e.Action", "e.RelateData", "RelateData.GetData cVouType".
class EarlyRow : public DrillDownArgs {
  public:
    explicit EarlyRow(RowParts parts) : objParts(std::move(parts)) {}

    std::shared_ptr<LoginContext> Login() override;
    std::string Action() override;
    std::shared_ptr<kavelin::RelateData> RelateData() override;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    RowParts objParts;
};

// The same lines with "late " before them.
class LateRow : public LateBound {
  public:
    explicit LateRow(RowParts parts) : objParts(std::move(parts)) {}

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    RowParts objParts;
};

}  // namespace kavelin::test
