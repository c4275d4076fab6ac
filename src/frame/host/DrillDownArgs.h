// What a host hands to a report to open what is behind one of its rows.
#pragma once

#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"

#include <memory>
#include <string>

namespace kavelin {

// A row of the result. Late-bound it has the same member.
class RelateData : public virtual HostObject {
  public:
    // The cell as text, "" for a null. Throws Error for a column that the row doesn't have.
    virtual std::string GetData(const std::string& column) = 0;
};

// The argument of Execute. Members that only some hosts have are reached by late binding on the same object.
class DrillDownArgs : public LateBound {
  public:
    virtual std::shared_ptr<LoginContext> Login() = 0;
    virtual std::string Action() = 0;  // the command of the report's toolbar that was chosen
    virtual std::shared_ptr<kavelin::RelateData> RelateData() = 0;
};

}  // namespace kavelin
