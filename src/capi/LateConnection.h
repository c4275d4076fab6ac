// A connection with members by name, "Kavelin.Connection": for hosts that have none of their own, and for
// connections of the library that reach the host.
#pragma once

#include "frame/Connection.h"
#include "frame/host/ConnectionObject.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string_view>
#include <vector>

namespace kavelin::capi {

// Members:
//   Open(connection string [, user [, password]])    Close()    State: 1 while it is open, else 0
//   Execute(batch): the number of rows that its last statement changed, -1 for none
//   OpenRecordset(statement): its rows
// and those of the rows, which stand on the first one:
//   EOF, RecordCount, FieldCount    MoveNext()    MoveFirst()    Close()
//   Field(number from 0, or name), FieldName(number), FieldType(number): T-SQL's name of the type
class LateConnection : public ConnectionObject, public LateBound {
  public:
    explicit LateConnection(std::shared_ptr<kavelin::Connection> connection);

    Variant Get(std::string_view member) override { return objMembers->Get(member); }
    void Put(std::string_view member, const Variant& value) override { objMembers->Put(member, value); }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        return objMembers->Call(member, arguments);
    }

  private:
    std::shared_ptr<LateBound> objMembers;
};

}  // namespace kavelin::capi
