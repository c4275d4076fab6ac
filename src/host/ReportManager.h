// The host's report manager, as reports reach it late-bound: the format in which a report is shown, and the
// form that shows it.
#pragma once

#include "frame/host/HostObject.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// A column of a report's format. Reports take columns out of the view that hold nothing.
struct FormatColumn {
    std::string expression;  // its name in the result
    int position = 0;        // from 1; 0 where it is taken out
    bool visible = true;
};

// Members: ReportFormatByName(name), whose `cols` has Count and Item from 1, each with Expression, Col and
// colVisible; ReportListFormByName(name), with RefreshList. Both take any name: the manager is made for one
// report.
class ReportManager : public LateBound {
  public:
    // `columns` as of TableColumns::names; without any there is no format. `refresh` draws the report again.
    ReportManager(std::string_view columns, std::function<void()> refresh);

    // Those that are visible, with commas between.
    std::string VisibleColumns() const;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::vector<std::shared_ptr<FormatColumn>> lstColumns;
    std::function<void()> objRefresh;
};

}  // namespace kavelin::host
