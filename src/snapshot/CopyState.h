// What a target keeps of the copies made into it: the table Kavelin_Copy, a row a table.
#pragma once

#include "frame/Connection.h"
#include "frame/Text.h"

#include <map>
#include <string>

namespace kavelin::snapshot {

class CopyState {
  public:
    // Reads the table if it is there. Throws DatabaseError.
    explicit CopyState(Connection& target);

    // The rows of the table were put there by a copy, whether it came to its end or not.
    bool IsCopy(const std::string& table) const { return dicStates.contains(table); }
    // It came to its end.
    bool IsWhole(const std::string& table) const;

    // Makes the table Kavelin_Copy if it isn't there. Throws Error if `source` is a connection to the same
    // database, by whatever name: it then sees the mark that is set here.
    void Begin(Connection& source);

    void SetBegun(const std::string& table);
    void SetWhole(const std::string& table);

  private:
    void Set(const std::string& table, const std::string& state);

    Connection& cnnTarget;
    bool blnThere = false;
    std::map<std::string, std::string, LessNoCase> dicStates;
};

}  // namespace kavelin::snapshot
