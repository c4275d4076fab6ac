// The argument of a report's entries, early-bound and late-bound in one object.
#pragma once

#include "frame/host/ReportCallArgs.h"

#include <memory>
#include <string>

namespace kavelin::host {

// The late-bound name of the type is both `Type` and `Typecode`.
class HostDataSource : public DataSource, public LateBound {
  public:
    explicit HostDataSource(std::string table) : strTable(std::move(table)) {}

    void SetType(std::int16_t type) override { intType = type; }
    std::string sql() override { return strTable; }

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::string strTable;
    std::int16_t intType = 0;
};

class HostCallArgs : public ReportCallArgs {
  public:
    // The arguments of the call are those that travel with the filter. `manager` may be null.
    HostCallArgs(std::string table, std::shared_ptr<ReportFilterObject> filter, std::string language,
                 HostObjectPtr manager = nullptr);

    std::shared_ptr<kavelin::DataSource> DataSource() override { return objDataSource; }
    std::shared_ptr<LoginContext> Login() override { return objFilter->Login(); }
    std::shared_ptr<ReportFilterObject> RawFilter() override { return objFilter; }
    std::shared_ptr<NamedValues> Args() override { return objFilter->ContextArgs(); }
    std::string LangID() override { return strLanguage; }

    // The members above, and `ObjreportManager`.
    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::shared_ptr<kavelin::DataSource> objDataSource;
    std::shared_ptr<ReportFilterObject> objFilter;
    std::string strLanguage;
    HostObjectPtr objManager;
};

}  // namespace kavelin::host
