// Names that the writer makes up, unique in one statement.
#pragma once

#include <functional>
#include <string>

namespace kavelin::embedded {

class Scratch {
  public:
    // A name for a value or a derived table: v1, v2, ...
    std::string NextName() { return "v" + std::to_string(++lngLast); }

    // What `form` makes of `operand` where it names it more than once. A short operand is repeated. A long
    // one, or a subquery, is bound to a name first, since nested forms would otherwise double at each level:
    //   list_transform([operand], lambda v1: CASE WHEN v1 = 0 THEN ... ELSE v1 END)[1]
    std::string Repeat(const std::string& operand,
                       const std::function<std::string(const std::string& operand)>& form);

  private:
    int lngLast = 0;
};

}  // namespace kavelin::embedded
