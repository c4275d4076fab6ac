// The argument of a drill-down, early-bound and late-bound in one object.
#pragma once

#include "frame/Connection.h"
#include "frame/Text.h"
#include "frame/host/DrillDownArgs.h"

#include <map>
#include <memory>
#include <string>

namespace kavelin::host {

class HostRow : public RelateData, public LateBound {
  public:
    // Takes the row on which the set stands.
    explicit HostRow(const Recordset& rows);

    std::string GetData(const std::string& column) override;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::map<std::string, std::string, LessNoCase> dicCells;
};

class HostRowArgs : public DrillDownArgs {
  public:
    // `row` is null for a command on the whole report; `manager` is null where no report is shown.
    HostRowArgs(std::shared_ptr<LoginContext> login, std::string action, std::shared_ptr<HostRow> row,
                HostObjectPtr manager = nullptr);

    std::shared_ptr<LoginContext> Login() override { return objLogin; }
    std::string Action() override { return strAction; }
    std::shared_ptr<kavelin::RelateData> RelateData() override { return objRow; }

    // The members above, and `FltArgs` with `ObjreportManager`.
    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::shared_ptr<LoginContext> objLogin;
    std::string strAction;
    std::shared_ptr<HostRow> objRow;
    HostObjectPtr objManager;
};

}  // namespace kavelin::host
