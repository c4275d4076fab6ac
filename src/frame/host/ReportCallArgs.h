// What a host hands to a report.
#pragma once

#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"
#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace kavelin {

class DataSource : public virtual HostObject {
  public:
    // 2: the data come from a table whose name is in sql().
    virtual void SetType(std::int16_t type) = 0;

    // In spite of its name: the name of the table that the report must create.
    virtual std::string sql() = 0;
};

// The argument of GETSQL. Members that only some hosts have, such as `ObjreportManager`, are reached by
// late binding on the same object.
class ReportCallArgs : public LateBound {
  public:
    virtual std::shared_ptr<kavelin::DataSource> DataSource() = 0;
    virtual std::shared_ptr<LoginContext> Login() = 0;
    virtual std::shared_ptr<ReportFilterObject> RawFilter() = 0;
    virtual std::shared_ptr<NamedValues> Args() = 0;
    virtual std::string LangID() = 0;
};

}  // namespace kavelin
