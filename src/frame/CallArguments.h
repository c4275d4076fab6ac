// The argument of an entry, read member by member, however the host binds it.
#pragma once

#include "frame/host/ReportCallArgs.h"

#include <memory>
#include <string>
#include <string_view>

namespace kavelin {

class CallArguments {
  public:
    virtual ~CallArguments() = default;

    virtual std::shared_ptr<ReportFilterObject> RawFilter() = 0;
    virtual std::shared_ptr<LoginContext> Login() = 0;
    virtual HostObjectPtr ObjreportManager() = 0;
    virtual Value ArgItem(std::string_view key) = 0;
    virtual std::string LangID() = 0;

    // The data source is read once and kept for the two.
    virtual void SetDataSourceType(std::int16_t type) = 0;
    virtual std::string Sql() = 0;
};

class EarlyArguments : public CallArguments {
  public:
    explicit EarlyArguments(ReportCallArgs& e) : objArguments(e) {}

    std::shared_ptr<ReportFilterObject> RawFilter() override;
    std::shared_ptr<LoginContext> Login() override;
    HostObjectPtr ObjreportManager() override;  // late-bound on the same object
    Value ArgItem(std::string_view key) override;
    std::string LangID() override;
    void SetDataSourceType(std::int16_t type) override;
    std::string Sql() override;

  private:
    ReportCallArgs& objArguments;
    std::shared_ptr<DataSource> objDataSource;
};

class LateArguments : public CallArguments {
  public:
    LateArguments(LateBound& e, std::string_view typeMember) : objArguments(e), strTypeMember(typeMember) {}

    std::shared_ptr<ReportFilterObject> RawFilter() override;
    std::shared_ptr<LoginContext> Login() override;
    HostObjectPtr ObjreportManager() override;
    Value ArgItem(std::string_view key) override;
    std::string LangID() override;
    void SetDataSourceType(std::int16_t type) override;
    std::string Sql() override;

  private:
    LateBound& objArguments;
    std::string_view strTypeMember;
    std::shared_ptr<LateBound> objDataSource;
};

}  // namespace kavelin
