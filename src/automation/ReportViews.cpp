// Views of what a host hands to a report and to a drill-down.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

class DataSourceView : public DataSource, public HostView {
  public:
    using HostView::HostView;

    void SetType(std::int16_t type) override { Write("Type", Value(std::int32_t{type})); }
    std::string sql() override { return ReadText("sql"); }
};

class ReportCallView : public LateView<ReportCallArgs> {
  public:
    using LateView::LateView;

    std::shared_ptr<kavelin::DataSource> DataSource() override
    {
        return ReadObject<kavelin::DataSource>("DataSource");
    }
    std::shared_ptr<LoginContext> Login() override { return ReadObject<LoginContext>("Login"); }
    std::shared_ptr<ReportFilterObject> RawFilter() override
    {
        return ReadObject<ReportFilterObject>("RawFilter");
    }
    std::shared_ptr<NamedValues> Args() override { return ReadObject<NamedValues>("Args"); }
    std::string LangID() override { return ReadText("LangID"); }
};

class RelateDataView : public RelateData, public HostView {
  public:
    using HostView::HostView;

    std::string GetData(const std::string& column) override
    {
        const Value cell = CallForValue("GetData", {Value(column)});
        return cell.IsNull() ? "" : ToText(cell);
    }
};

class DrillDownView : public LateView<DrillDownArgs> {
  public:
    using LateView::LateView;

    std::shared_ptr<LoginContext> Login() override { return ReadObject<LoginContext>("Login"); }
    std::string Action() override { return ReadText("Action"); }
    std::shared_ptr<kavelin::RelateData> RelateData() override
    {
        return ReadObject<kavelin::RelateData>("RelateData");
    }
};

}  // namespace

template <>
std::shared_ptr<DataSource> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<DataSourceView>(std::move(object), "DataSource");
}

template <>
std::shared_ptr<ReportCallArgs> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<ReportCallView>(std::move(object), "e");
}

template <>
std::shared_ptr<RelateData> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<RelateDataView>(std::move(object), "RelateData");
}

template <>
std::shared_ptr<DrillDownArgs> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<DrillDownView>(std::move(object), "e");
}

}  // namespace kavelin::automation
