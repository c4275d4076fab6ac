// A filter made of items that a test lists, in order.
#pragma once

#include "support/EventLog.h"

#include "frame/host/ReportFilterObject.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::test {

struct FakeField {
    std::string name;
    Value from = {};
    Value to = {};
    bool rangeInput = false;
    bool multiple = false;
    std::string controlKey = {};  // the name if it is empty
};

// The filter of a call. Writes and reads of an item are the lines "cNo.LngGrouptoken = 1", "cNo.Name",
// "cNo.varValue", "cNo.varValue2"; others of the filter are "RawFilter.FilterList", "FilterList.Count",
// "FilterList.Item 1", "RawFilter.SetFieldLocked cNo, True", "ContextArgs.Add 1, ABC" and so on.
class FakeFilter : public ReportFilterObject {
  public:
    FakeFilter(std::shared_ptr<EventLog> events, const std::vector<FakeField>& fields);

    // The token that was last stored in each item, in order; -1 where none was.
    std::vector<std::int32_t> Tokens() const;

    // The items as the test listed them.
    const std::vector<FakeField>& Fields() const { return lstFields; }

    std::string filterId;
    std::shared_ptr<LoginContext> login;

    // What an item holds now. Throws for a key that no item has.
    Value From(const std::string& key) const;
    Value To(const std::string& key) const;
    std::string ListSource(const std::string& key) const;

    // What ContextArgs holds, in the order in which it came.
    std::vector<std::pair<std::string, Value>> contextArgs;

    // What GetWhereWithToken gives for a token, and for any that isn't here.
    std::map<std::int32_t, std::string> whereByToken;
    std::string where;

    std::string FilterID() override;
    std::shared_ptr<LoginContext> Login() override;
    std::shared_ptr<kavelin::FilterList> FilterList() override;
    std::shared_ptr<NamedValues> ContextArgs() override;
    Value GetFieldValue(const std::string& key) override;
    void SetFieldValue(const std::string& key, const Value& value) override;
    void SetFieldRefCondition(const std::string& key, const std::string& text,
                              const std::string& condition) override;
    void SetFieldFlag(const std::string& key, bool flag) override;
    void SetFieldLocked(const std::string& key, bool locked) override;
    void RefreshFieldList(const std::string& key, const std::string& enumType,
                          const std::string& list) override;
    void SetFieldRangeList(const std::string& key, const std::string& list) override;
    std::string GetWhereWithToken(std::int32_t token) override;

  private:
    class Item;
    class List;
    class Arguments;

    const Item& Find(const std::string& key) const;

    std::shared_ptr<EventLog> objEvents;
    std::vector<FakeField> lstFields;
    std::vector<std::shared_ptr<Item>> lstItems;
};

}  // namespace kavelin::test
