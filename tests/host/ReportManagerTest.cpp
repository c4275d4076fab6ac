// The host's report manager, as a report reaches it by name.
#include "host/ReportManager.h"

#include "frame/Errors.h"
#include "host/HostRowArgs.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

std::shared_ptr<LateBound> ColumnsOf(ReportManager& manager)
{
    const auto format =
        ObjectOf<LateBound>(manager.Call("ReportFormatByName", {Value("any")}), "ReportFormatByName");
    return ObjectOf<LateBound>(format->Get("Cols"), "Cols");
}

std::shared_ptr<LateBound> Column(LateBound& columns, int position)
{
    return ObjectOf<LateBound>(columns.Call("Item", {Value(position)}), "Item");
}

}  // namespace

TEST(ReportManager, ShowsTheColumnsOfItsReportWithoutThoseThatWereTakenOut)
{
    ReportManager manager("a,b,c", nullptr);
    EXPECT_EQ(manager.VisibleColumns(), "a,b,c");
    const auto columns = ColumnsOf(manager);
    EXPECT_EQ(ToInt32(ValueOf(columns->Get("count"), "count")), 3);
    const auto second = Column(*columns, 2);
    EXPECT_EQ(second->Get("Expression"), Variant(Value("b")));
    EXPECT_EQ(ToInt32(ValueOf(second->Get("Col"), "Col")), 2);
    second->Put("Col", Value(0));
    second->Put("colVisible", Value(false));
    EXPECT_EQ(manager.VisibleColumns(), "a,c");
    EXPECT_EQ(ColumnsOf(manager)->Get("Count"), columns->Get("Count"));
}

TEST(ReportManager, HasNoFormatForAReportWithoutColumns)
{
    ReportManager manager("", nullptr);
    EXPECT_EQ(manager.Call("ReportFormatByName", {Value("any")}), Variant(HostObjectPtr()));
    EXPECT_EQ(manager.VisibleColumns(), "");
}

TEST(ReportManager, DrawsTheReportAgain)
{
    int drawn = 0;
    ReportManager manager("a", [&] { ++drawn; });
    const auto form =
        ObjectOf<LateBound>(manager.Call("ReportListFormByName", {Value("any")}), "ReportListFormByName");
    form->Call("RefreshList", {});
    EXPECT_EQ(drawn, 1);
}

TEST(ReportManager, RefusesWhatItDoesNotKnow)
{
    ReportManager manager("a", nullptr);
    EXPECT_THROW(manager.Call("Print", {}), Error);
    EXPECT_THROW(manager.Get("Name"), Error);
    const auto columns = ColumnsOf(manager);
    EXPECT_THROW(Column(*columns, 0), Error);
    EXPECT_THROW(Column(*columns, 2), Error);
    EXPECT_THROW(Column(*columns, 1)->Put("Expression", Value("b")), Error);
}

TEST(HostRowArgs, HasTheReportManagerAmongTheReportsArguments)
{
    const auto manager = std::make_shared<ReportManager>("a", nullptr);
    HostRowArgs arguments(nullptr, "ActA", nullptr, manager);
    const auto report = ObjectOf<LateBound>(arguments.Get("FltArgs"), "FltArgs");
    EXPECT_EQ(report->Get("ObjreportManager"), Variant(HostObjectPtr(manager)));
    EXPECT_THROW(report->Get("Other"), Error);
}

}  // namespace kavelin::host
